// SPDX-License-Identifier: MIT
#include "LongWords.h"

namespace lumora
{

namespace
{

constexpr qsizetype longestWord = 24;
constexpr qsizetype longestPiece = 16;
constexpr QChar breakHere(0x200B);

/// False for a character that must stay with the previous one.
bool mayBegin(QChar character)
{
    return !character.isLowSurrogate() && !character.isMark();
}

void appendInPieces(QString &text, QStringView word)
{
    qsizetype piece = 0;
    for (qsizetype i = 0; i < word.size(); ++i) {
        text += word[i];
        ++piece;
        if (i + 1 == word.size())
            break;
        // Not inside a run of punctuation: the "://" of an address stays together.
        const bool endsPunctuation = word[i].isPunct() && !word[i + 1].isPunct();
        if ((piece >= longestPiece || endsPunctuation) && mayBegin(word[i + 1])) {
            text += breakHere;
            piece = 0;
        }
    }
}

} // namespace

QString breakingLongWords(const QString &text)
{
    QString breaking;
    breaking.reserve(text.size());
    qsizetype begin = 0;
    while (begin < text.size()) {
        qsizetype end = begin;
        while (end < text.size() && !text[end].isSpace())
            ++end;
        const QStringView word = QStringView(text).sliced(begin, end - begin);
        if (word.size() > longestWord)
            appendInPieces(breaking, word);
        else
            breaking += word;
        if (end < text.size())
            breaking += text[end];
        begin = end + 1;
    }
    return breaking;
}

} // namespace lumora
