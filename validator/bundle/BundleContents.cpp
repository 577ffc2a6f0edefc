// SPDX-License-Identifier: MIT
#include "BundleContents.h"

#include "LocalizationName.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString localizationExtension = u"lproj"_s;

} // namespace

QString pathExtension(const QString &path)
{
    const QString name = path.mid(path.lastIndexOf(u'/') + 1);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot <= 0 ? QString() : name.mid(dot + 1);
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
    // A hostile bundle may have half a million names, so no name is copied.
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
