// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

namespace lumora
{

/// The look of a line of text.
struct TextAttributes
{
    QFont font;
    QColor color;
    /// Where a line that does not fit is shortened.
    Qt::TextElideMode lineBreakMode = Qt::ElideRight;
    /// Left and right are swapped where reading begins at the right.
    Qt::Alignment alignment = Qt::AlignLeft;

    bool operator==(const TextAttributes &other) const = default;
};

/// A line of text with one look throughout.
struct AttributedString
{
    QString string;
    TextAttributes attributes;

    bool operator==(const AttributedString &other) const = default;
};

/// The look of selected text.
struct SelectionAttributes
{
    QColor color;
    QColor backgroundColor;

    bool operator==(const SelectionAttributes &other) const = default;
};

} // namespace lumora
