// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRawFont>
#include <QString>

namespace lumora
{

/// The compiled-in Lato-Bold as bare outlines and design metrics, all in ems. It does not depend on the system's font
/// database, hinting, screen or settings, so a label has the same size and look on every machine. Needs a
/// QGuiApplication, whose platform reads the font's tables.
class LabelFont
{
public:
    LabelFont();

    /// The sum of the advances of the text's glyphs. Digits and the letter x have no kerning pairs in this font.
    double width(const QString &text) const;
    /// Whether the font has a glyph for the character.
    bool hasShape(QChar character) const;
    /// From the baseline to the top and to the bottom of a line, both positive; their sum is the line's height.
    double ascent() const { return m_ascent; }
    double descent() const { return m_descent; }
    /// The text's filled shape with its first baseline point at (0, 0), y counted downwards.
    QPainterPath outline(const QString &text) const;

private:
    QRawFont m_font; ///< at one pixel per design unit, so that its outlines have the designer's coordinates
    double m_unitsPerEm = 1;
    double m_ascent = 0;
    double m_descent = 0;
};

} // namespace lumora
