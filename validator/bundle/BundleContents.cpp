// SPDX-License-Identifier: MIT
#include "BundleContents.h"

#include "LocalizationName.h"

#include <QFile>

#include <cerrno>
#include <memory>

#include <dirent.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

const QString localizationExtension = u"lproj"_s;

} // namespace

QString pathExtension(const QString &path)
{
    const QString name = path.mid(path.lastIndexOf(u'/') + 1);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot <= 0 ? QString() : name.mid(dot + 1);
}

Result<QStringList> folderListing(const QString &folder)
{
    const std::unique_ptr<DIR, CloseFolder> open(::opendir(QFile::encodeName(folder).constData()));
    if (!open)
        return Failure{errno == ENOENT ? FailureCode::NotFound : FailureCode::NotReadable, folder,
                       qt_error_string(errno)};
    QStringList names;
    while (const dirent *entry = ::readdir(open.get())) {
        const QString name = QString::fromUtf8(entry->d_name);
        if (name != u"." && name != u"..")
            names += name;
    }
    names.sort();
    return names;
}

QString appBundleName(const QStringList &payload)
{
    QString bundle;
    for (const QString &name : payload) {
        if (pathExtension(name) == u"app")
            bundle = name;
    }
    return bundle;
}

BundleContents bundleContents(QStringList listing)
{
    BundleContents contents;
    // A hostile bundle holds half a million names: each is kept once, in the memory it already has.
    for (QString &name : listing) {
        const QString extension = pathExtension(name);
        if (name == u"Info.plist")
            contents.hasInfoPlist = true;
        if (extension == u"png" || name.contains(u"iTunesArtwork"))
            contents.images += name;
        if (extension == localizationExtension) {
            name.chop(localizationExtension.size() + 1);
            contents.localizations += localizationName(name);
        }
    }
    return contents;
}

} // namespace lumora
