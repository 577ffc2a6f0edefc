// SPDX-License-Identifier: MIT
#include "StyledText.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString htmlOf(const QString &text, const QFont &font)
{
    return u"<span style=\"font-family:'%1'; font-weight:%2; font-size:%3px\">%4</span>"_s
        .arg(font.family().toHtmlEscaped())
        .arg(font.weight())
        .arg(font.pixelSize())
        .arg(text);
}

} // namespace

void StyledText::setFontOfFirst(const QString &part, const QFont &font)
{
    const qsizetype start = part.isEmpty() ? -1 : m_text.indexOf(part);
    if (start >= 0)
        m_runs << Run{start, part.size(), font};
}

QString StyledText::toHtml() const
{
    QList<qsizetype> runAt(m_text.size(), -1);
    for (qsizetype run = 0; run < m_runs.size(); ++run)
        std::fill_n(runAt.begin() + m_runs[run].start, m_runs[run].length, run);

    QString html;
    for (qsizetype start = 0; start < m_text.size();) {
        const qsizetype run = runAt[start];
        qsizetype end = start;
        while (end < m_text.size() && runAt[end] == run)
            ++end;
        QString part = m_text.sliced(start, end - start).toHtmlEscaped();
        part.replace(u'\n', u"<br>"_s);
        html += run < 0 ? part : htmlOf(part, m_runs[run].font);
        start = end;
    }
    // Rich text would merge a space at either end of a run with its neighbor.
    return u"<span style=\"white-space:pre-wrap\">"_s + html + u"</span>"_s;
}

} // namespace lumora
