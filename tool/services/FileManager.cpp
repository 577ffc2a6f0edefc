// SPDX-License-Identifier: MIT
#include "FileManager.h"

#include "foundation/FileDescriptor.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QDesktopServices>
#include <QFile>
#include <QUrl>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// Long enough for a file manager that has to be started first.
constexpr int patience = 10000; // milliseconds

/// Sends the message and calls `failed` if the call ends in an error.
template <typename Failed> void call(QObject *context, const QDBusMessage &message, Failed failed)
{
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message, patience), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [watcher, failed] {
        watcher->deleteLater();
        if (watcher->isError())
            failed();
    });
}

} // namespace

void DesktopFileManager::show(const QString &path)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
                                       u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    message << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    call(this, message, [this, path] { showByPortal(path); });
}

void DesktopFileManager::showByPortal(const QString &path)
{
    const FileDescriptor file(::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC));
    if (!file.valid()) {
        open(path);
        return;
    }
    QDBusMessage message =
        QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
                                       u"org.freedesktop.portal.OpenURI"_s, u"OpenDirectory"_s);
    message << QString() << QVariant::fromValue(QDBusUnixFileDescriptor(file.number())) << QVariantMap();
    call(this, message, [path] { open(path); });
}

void DesktopFileManager::open(const QString &path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace lumora
