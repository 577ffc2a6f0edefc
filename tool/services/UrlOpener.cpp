// SPDX-License-Identifier: MIT
#include "UrlOpener.h"

#include <QDesktopServices>
#include <QFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The desktop's lists of default applications, most important first.
QStringList mimeAppsFiles()
{
    QStringList names;
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
    for (const QString &desktop : desktops)
        names << desktop.toLower() + u"-mimeapps.list"_s;
    names << u"mimeapps.list"_s;

    QStringList contents;
    const auto read = [&](const QString &path) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            contents << QString::fromUtf8(file.readAll());
    };
    for (const QString &folder : QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation)) {
        for (const QString &name : names)
            read(folder + u'/' + name);
    }
    for (const QString &folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        for (const QString &name : names)
            read(folder + u"/applications/"_s + name);
    }
    return contents;
}

} // namespace

void DesktopUrlOpener::open(const QUrl &url)
{
    if (url.isValid() && !url.scheme().isEmpty())
        QDesktopServices::openUrl(url);
}

QString DesktopUrlOpener::applicationFor(const QUrl &url) const
{
    return defaultApplication(mimeAppsFiles(), u"x-scheme-handler/"_s + url.scheme());
}

QString defaultApplication(const QStringList &mimeAppsFiles, const QString &mimeType)
{
    for (const QString &file : mimeAppsFiles) {
        bool defaults = false;
        for (const QString &line : file.split(u'\n')) {
            const QString entry = line.trimmed();
            if (entry.startsWith(u'[')) {
                defaults = entry == u"[Default Applications]"_s;
                continue;
            }
            if (!defaults || entry.section(u'=', 0, 0).trimmed() != mimeType)
                continue;
            const QString application = entry.section(u'=', 1).section(u';', 0, 0).trimmed();
            if (!application.isEmpty())
                return application;
        }
    }
    return {};
}

} // namespace lumora
