// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/style/ColorShades.h"

#include <QFont>
#include <QObject>
#include <QRectF>
#include <QString>

class QPainter;

namespace lumora
{
Q_NAMESPACE

/// The purpose of a beveled button; each has its own color.
enum class KBButtonType { Default, Primary, Information, Success, Warning, Danger, Inverse };
Q_ENUM_NS(KBButtonType)

/// Draws the bezel and the title of a KBButton: a dark outline, inside it a gradient of the type's color from light at
/// the top to plain at the bottom.
class KBButtonCell
{
public:
    KBButtonCell();

    KBButtonType kbButtonType() const { return m_type; }
    /// Also picks the base color.
    void setKBButtonType(KBButtonType type);
    static RgbaColor getColorForButtonType(KBButtonType type);
    const RgbaColor &baseColor() const { return m_baseColor; }

    /// Whether the button is held down; its gradient then runs from a darker color to the plain one.
    bool isHighlighted() const { return m_highlighted; }
    void setHighlighted(bool highlighted) { m_highlighted = highlighted; }
    /// Whether the pointer is over the button; its gradient is then lighter throughout.
    bool isHovered() const { return m_hovered; }
    void setHovered(bool hovered) { m_hovered = hovered; }

    const QFont &font() const { return m_font; }

    /// These two fill the frame, with corners rounded by 3, and keep the painter's state.
    void drawBezelWithFrame(QPainter &painter, const QRectF &frame) const;
    /// Draws the title in the middle of the frame, dark on a light base color, else white; shortened with an ellipsis
    /// if it does not fit.
    void drawTitle(QPainter &painter, const QString &title, const QRectF &frame) const;

private:
    KBButtonType m_type = KBButtonType::Default;
    RgbaColor m_baseColor;
    QFont m_font;
    bool m_highlighted = false;
    bool m_hovered = false;
};

} // namespace lumora
