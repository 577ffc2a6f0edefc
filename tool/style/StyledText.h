// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QList>
#include <QString>

namespace lumora
{

/// A text with parts in fonts of their own; the rest has the font of the label that shows it.
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

    /// Sets the font of the part's first occurrence; an empty or missing part changes nothing.
    void setFontOfFirst(const QString &part, const QFont &font);
    /// Rich text for a label, with every character escaped. Where two runs overlap, the later one counts.
    QString toHtml() const;

private:
    QString m_text;
    QList<Run> m_runs;
};

} // namespace lumora
