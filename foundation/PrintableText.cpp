// SPDX-License-Identifier: MIT
#include "PrintableText.h"

#include <algorithm>

namespace lumora
{

namespace
{

bool isHarmless(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

} // namespace

QString printableText(const QString &text)
{
    // The usual case: nothing is copied.
    if (std::all_of(text.cbegin(), text.cend(), isHarmless))
        return text;
    QString printable;
    printable.reserve(text.size());
    for (const QChar character : text) {
        if (isHarmless(character))
            printable += character;
        else
            printable += QStringLiteral("<U+%1>").arg(uint{character.unicode()}, 4, 16, QLatin1Char('0')).toUpper();
    }
    return printable;
}

} // namespace lumora
