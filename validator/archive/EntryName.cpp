// SPDX-License-Identifier: MIT
#include "EntryName.h"

#include <QStringDecoder>

namespace lumora
{

namespace
{

/// Code page 437 from 0x80 on, from Unicode's mapping table CP437.TXT.
constexpr char16_t upperHalf437[] = u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧"
                                    u"╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
static_assert(std::size(upperHalf437) == 128 + 1);

QString fromCodePage437(const QByteArray &bytes)
{
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        text += QChar(code < 0x80 ? char16_t{code} : upperHalf437[code - 0x80]);
    }
    return text;
}

bool hasDriveLetter(const QString &name)
{
    return name.size() >= 2 && name[1] == u':' && name[0].unicode() < 0x80 && name[0].isLetter();
}

} // namespace

QString entryNameText(const QByteArray &stored)
{
    const qsizetype end = stored.indexOf('\0');
    const QByteArray name = end < 0 ? stored : stored.first(end);
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(name);
    return decoder.hasError() ? fromCodePage437(name) : text;
}

bool isFolderEntry(const QByteArray &stored)
{
    return stored.endsWith('/') || stored.endsWith('\\');
}

QString withForwardSlashes(QString name)
{
    return name.replace(u'\\', u'/');
}

std::optional<QList<QByteArray>> safeSteps(const QString &name)
{
    if (name.startsWith(u'/') || hasDriveLetter(name))
        return std::nullopt;
    QList<QByteArray> steps;
    qsizetype length = 0;
    for (const QStringView part : QStringView(name).split(u'/', Qt::SkipEmptyParts)) {
        if (part == u".")
            continue;
        if (part == u"..")
            return std::nullopt;
        steps += part.toUtf8();
        length += steps.last().size() + 1;
        if (length > longestEntryPath || steps.size() > deepestEntryPath)
            return std::nullopt;
    }
    return steps;
}

} // namespace lumora
