// SPDX-License-Identifier: MIT
#include "CheckParts.h"
#include "foundation/WholeFile.h"
#include "icons/today/WindowsAssets.h"
#include "pictures/IcnsReader.h"
#include "pictures/PictureReader.h"
#include "pictures/ico/IcoReader.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// A browser shows no larger picture of its site's icon file.
bool isSiteIcon(const QString &file)
{
    return QFileInfo(file).fileName().startsWith(u"favicon");
}

} // namespace

void checkIcoFile(const QString &file, IconCheck &check)
{
    check.checked << file;
    const Result<QByteArray> bytes = readWholeFile(file, largestPictureFile);
    const std::optional<std::vector<IcoEntry>> entries = bytes ? readIcoEntries(bytes.value()) : std::nullopt;
    if (!entries) {
        check.add(IconRule::IconFileBroken, file);
        return;
    }
    const bool large = std::any_of(entries->begin(), entries->end(),
                                   [](const IcoEntry &entry) { return entry.size.width() >= firstPngIconSize; });
    if (!large && !isSiteIcon(file))
        check.add(IconRule::LargePictureMissing, file);
}

void checkIcnsFile(const QString &file, IconCheck &check)
{
    check.checked << file;
    const Result<QByteArray> bytes = readWholeFile(file, largestPictureFile);
    if (!bytes || !bytes.value().startsWith("icns")) {
        check.add(IconRule::IconFileBroken, file);
        return;
    }
    const Result<QSize> size = storedPixelSize(bytes.value(), file);
    if (!size || size.value().width() < firstPngIconSize)
        check.add(IconRule::LargePictureMissing, file);
}

void checkSizedPicture(const QString &file, QSize size, IconCheck &check)
{
    check.checked << file;
    checkSlot(file, {size, Transparency::Shown}, check);
}

std::optional<QSize> hicolorSize(const QString &path)
{
    static const QRegularExpression folder(u"(?:^|/)(\\d{1,4})x(\\d{1,4})(?:@(\\d))?/apps/[^/]+\\.png$"_s);
    const QRegularExpressionMatch match = folder.match(path);
    if (!match.hasMatch())
        return std::nullopt;
    const int scale = match.hasCaptured(3) ? match.captured(3).toInt() : 1;
    return QSize(match.captured(1).toInt(), match.captured(2).toInt()) * scale;
}

std::optional<QSize> windowsAssetSize(const QString &fileName)
{
    static const QRegularExpression target(u"\\.targetsize-(\\d{1,4})(_[a-z0-9-]+)?\\.png$"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression scaled(u"^(?:Square|Wide)(\\d{1,4})x(\\d{1,4})Logo\\.scale-(\\d{1,3})\\.png$"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression named(u"^(\\w+)\\.scale-(\\d{1,3})\\.png$"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    if (const QRegularExpressionMatch match = target.match(fileName); match.hasMatch())
        return QSize(match.captured(1).toInt(), match.captured(1).toInt());
    if (const QRegularExpressionMatch match = scaled.match(fileName); match.hasMatch()) {
        const int scale = match.captured(3).toInt();
        return QSize(WindowsAsset::scaled(match.captured(1).toInt(), scale),
                     WindowsAsset::scaled(match.captured(2).toInt(), scale));
    }
    if (const QRegularExpressionMatch match = named.match(fileName); match.hasMatch()) {
        for (const WindowsAsset &asset : windowsAssets) {
            if (match.captured(1).compare(QLatin1StringView(asset.name), Qt::CaseInsensitive) == 0) {
                const int scale = match.captured(2).toInt();
                return QSize(WindowsAsset::scaled(asset.width, scale), WindowsAsset::scaled(asset.height, scale));
            }
        }
    }
    return std::nullopt;
}

} // namespace lumora
