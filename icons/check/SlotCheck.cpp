// SPDX-License-Identifier: MIT
#include "CheckParts.h"

#include "foundation/WholeFile.h"
#include "pictures/pixels/SizeText.h"
#include "pictures/scaling/PicturePlanes.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qint64 longestJson = 4LL * 1024 * 1024;

void checkTransparency(const PictureFacts &facts, const QString &path, const SlotDemands &demands, IconCheck &check)
{
    if (!facts.alphaChannel || demands.transparency == Transparency::Shown)
        return;
    if (hasTransparency(facts))
        check.add(demands.transparency == Transparency::Lost ? IconRule::IconTransparent
                                                             : IconRule::StoreIconTransparent,
                  path);
    else if (demands.transparency == Transparency::Refused)
        check.add(IconRule::AlphaChannel, path);
}

void checkForm(const PictureFacts &facts, const QString &path, const SlotDemands &demands, IconCheck &check)
{
    if (facts.format != "png")
        check.add(IconRule::ForeignFormat, path, QString::fromLatin1(facts.format).toUpper());
    if (demands.transparency == Transparency::Refused && (facts.palette || facts.wideGamut))
        check.add(IconRule::StoreIconColors, path,
                  facts.palette ? FailureDetail("DETAIL_PALETTE") : FailureDetail(u"Display P3"_s));
    if (facts.deep || facts.interlaced)
        check.add(IconRule::UncommonPixels, path, facts.deep ? "DETAIL_16_BITS" : "DETAIL_INTERLACED");
}

} // namespace

std::optional<PictureFacts> checkSlot(const QString &path, const SlotDemands &demands, IconCheck &check)
{
    PictureFacts facts = pictureFacts(path);
    if (!facts.exists) {
        check.add(IconRule::FileMissing, path);
        return std::nullopt;
    }
    if (!facts.readable) {
        check.add(IconRule::PictureUnreadable, path);
        return std::nullopt;
    }
    const bool isSquareEnough =
        demands.leastSquare && facts.size.width() == facts.size.height() && facts.size.width() >= *demands.leastSquare;
    if (!demands.size.isEmpty() && facts.size != demands.size && !isSquareEnough)
        check.add(IconRule::WrongSize, path, pixelsDetail(facts.size, demands.size));
    checkTransparency(facts, path, demands, check);
    checkForm(facts, path, demands, check);
    return facts;
}

bool hasTransparency(const PictureFacts &facts)
{
    if (!facts.alphaChannel)
        return false;
    const QImage pixels = facts.pixels();
    return !pixels.isNull() && !isOpaque(pixels);
}

std::optional<QJsonObject> readJson(const QString &path)
{
    const Result<QByteArray> bytes = readWholeFile(path, longestJson);
    if (!bytes)
        return std::nullopt;
    QByteArray text = bytes.value();
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    const QJsonDocument document = QJsonDocument::fromJson(text);
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

bool isPlainName(const QString &name)
{
    return !name.contains(u'/') && !name.contains(u'\\') && !name.contains(QChar(0)) && name != u"." && name != u"..";
}

} // namespace lumora
