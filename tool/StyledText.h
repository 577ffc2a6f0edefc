// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QList>
#include <QString>

namespace lumora
{

/// A text parts of which have a font of their own; the rest takes that of the label that shows it.
class StyledText
{
public:
    struct Run
    {
        qsizetype start = 0;
        qsizetype length = 0;
        QFont font;

        bool operator==(const Run &) const = default;
    };

    explicit StyledText(QString text) : m_text(std::move(text)) {}

    const QString &text() const { return m_text; }
    /// In the order in which they were set.
    const QList<Run> &runs() const { return m_runs; }

    /// Gives the first occurrence of the part the font; a part that is empty or does not occur changes nothing.
    void setFontOfFirst(const QString &part, const QFont &font);
    /// For a label that shows rich text: every character stands for itself. Of two runs over one character the later
    /// one counts.
    QString toHtml() const;

private:
    QString m_text;
    QList<Run> m_runs;
};

} // namespace lumora
