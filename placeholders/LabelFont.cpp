// SPDX-License-Identifier: MIT
#include "LabelFont.h"

#include "resources/Resources.h"

#include <QFile>
#include <QTransform>
#include <QtEndian>

namespace lumora
{

namespace
{

QByteArray fontBytes()
{
    loadResources();
    QFile file(QStringLiteral(":/fonts/Lato-Bold.ttf"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Reads one signed 16-bit number of the font's horizontal header; 0 where the table is too short.
double headerFigure(const QByteArray &header, qsizetype offset)
{
    return header.size() >= offset + 2 ? qFromBigEndian<qint16>(header.constData() + offset) : 0;
}

constexpr qsizetype ascenderOffset = 4;
constexpr qsizetype descenderOffset = 6;

} // namespace

LabelFont::LabelFont()
{
    const QByteArray bytes = fontBytes();
    const QRawFont probe(bytes, 1.0, QFont::PreferNoHinting);
    m_unitsPerEm = probe.unitsPerEm();
    m_font = QRawFont(bytes, m_unitsPerEm, QFont::PreferNoHinting);
    // The font's own header, since platforms compute ascent and descent differently.
    const QByteArray header = m_font.fontTable("hhea");
    m_ascent = headerFigure(header, ascenderOffset) / m_unitsPerEm;
    m_descent = -headerFigure(header, descenderOffset) / m_unitsPerEm;
}

double LabelFont::width(const QString &text) const
{
    double units = 0;
    const auto advances =
        m_font.advancesForGlyphIndexes(m_font.glyphIndexesForString(text), QRawFont::UseDesignMetrics);
    for (const QPointF &advance : advances)
        units += advance.x();
    return units / m_unitsPerEm;
}

bool LabelFont::hasShape(QChar character) const
{
    const QList<quint32> glyphs = m_font.glyphIndexesForString(QString(character));
    return glyphs.size() == 1 && glyphs[0] != 0;
}

QPainterPath LabelFont::outline(const QString &text) const
{
    QPainterPath path;
    double pen = 0;
    const auto glyphs = m_font.glyphIndexesForString(text);
    const auto advances = m_font.advancesForGlyphIndexes(glyphs, QRawFont::UseDesignMetrics);
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        path.addPath(m_font.pathForGlyph(glyphs.at(i)).translated(pen, 0));
        pen += advances.at(i).x();
    }
    return QTransform::fromScale(1 / m_unitsPerEm, 1 / m_unitsPerEm).map(path);
}

} // namespace lumora
