// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

namespace lumora
{

/// How a line of text is drawn.
struct TextAttributes
{
    QFont font;
    QColor color;
    /// Where a line that does not fit is cut.
    Qt::TextElideMode lineBreakMode = Qt::ElideRight;
    /// Left and right change places where reading begins at the right.
    Qt::Alignment alignment = Qt::AlignLeft;

    bool operator==(const TextAttributes &other) const = default;
};

/// A line of text that is drawn one way throughout.
struct AttributedString
{
    QString string;
    TextAttributes attributes;

    bool operator==(const AttributedString &other) const = default;
};

/// How selected text is drawn.
struct SelectionAttributes
{
    QColor color;
    QColor backgroundColor;

    bool operator==(const SelectionAttributes &other) const = default;
};

} // namespace lumora
