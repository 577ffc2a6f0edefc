// SPDX-License-Identifier: MIT
#include "LabeledPicture.h"

#include "placeholders/LabelFont.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString filledIn(const QString &text, QSize points)
{
    QString filled = text;
    filled.replace(u"{size}"_s, u"%1 x %2"_s.arg(points.width()).arg(points.height()));
    filled.replace(u"{width}"_s, QString::number(points.width()));
    filled.replace(u"{height}"_s, QString::number(points.height()));
    // Characters that no font draws and no XML document may contain.
    filled.removeIf([](QChar one) { return one != u'\n' && one.category() == QChar::Other_Control; });
    return filled;
}

/// The text in ems, with centered lines; the first baseline is at y = 0.
QPainterPath linesOutline(const QStringList &lines, const LabelFont &font)
{
    const double lineHeight = font.ascent() + font.descent();
    QPainterPath path;
    for (qsizetype index = 0; index < lines.size(); ++index) {
        const double left = -font.width(lines[index]) / 2.0;
        path.addPath(font.outline(lines[index]).translated(left, static_cast<double>(index) * lineHeight));
    }
    return path;
}

/// The pixels of an em: a tenth of the longer edge, or less if the text would take more than four fifths of the
/// picture's width or height.
double emPixels(const QStringList &lines, QSize pixels, const LabelFont &font)
{
    constexpr double room = 0.8;
    double widest = 0.0;
    for (const QString &line : lines)
        widest = std::max(widest, font.width(line));
    const double high = static_cast<double>(lines.size()) * (font.ascent() + font.descent());
    double em = std::max(pixels.width(), pixels.height()) / 10.0;
    if (widest > 0.0)
        em = std::min(em, room * pixels.width() / widest);
    return std::min(em, room * pixels.height() / high);
}

QPainterPath placedOutline(const QString &text, QSize pixels, const LabelFont &font)
{
    const QStringList lines = text.split(u'\n');
    const double em = emPixels(lines, pixels, font);
    const double high = static_cast<double>(lines.size()) * (font.ascent() + font.descent()) * em;
    const double firstBaseline = (pixels.height() - high) / 2.0 + font.ascent() * em;
    return QTransform::fromTranslate(pixels.width() / 2.0, firstBaseline).scale(em, em).map(linesOutline(lines, font));
}

/// The ink at a coverage over the background, as a straight color.
std::array<unsigned char, 4> mixed(const QColor &ink, const QColor &ground, unsigned char coverage)
{
    const double above = ink.alphaF() * coverage / 255.0;
    const double below = ground.alphaF() * (1.0 - above);
    const double alpha = above + below;
    if (alpha <= 0.0)
        return {0, 0, 0, 0};
    const auto channel = [&](double one, double other) {
        return static_cast<unsigned char>(std::lround((one * above + other * below) / alpha * 255.0));
    };
    return {channel(ink.redF(), ground.redF()), channel(ink.greenF(), ground.greenF()),
            channel(ink.blueF(), ground.blueF()), static_cast<unsigned char>(std::lround(alpha * 255.0))};
}

QString number(double value)
{
    QString text = QString::number(value, 'f', 3);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text == u"-0" ? u"0"_s : text;
}

QString pathData(const QPainterPath &path)
{
    QString data;
    for (int index = 0; index < path.elementCount(); ++index) {
        const QPainterPath::Element element = path.elementAt(index);
        switch (element.type) {
        case QPainterPath::MoveToElement:
            data += u'M';
            break;
        case QPainterPath::LineToElement:
            data += u'L';
            break;
        case QPainterPath::CurveToElement:
            data += u'C';
            break;
        case QPainterPath::CurveToDataElement:
            data += u' ';
            break;
        }
        data += number(element.x) + u' ' + number(element.y);
    }
    return data;
}

QString fill(const QColor &color)
{
    const QString plain = u"fill=\"%1\""_s.arg(color.name());
    return color.alpha() == 255 ? plain : QString(plain + u" fill-opacity=\"%1\""_s.arg(number(color.alphaF())));
}

} // namespace

LabeledPicture::LabeledPicture(const ListedSize &size, const PictureLook &look, const LabelFont &font)
    : m_size(size), m_text(filledIn(look.text, size.points)), m_ink(look.foreground), m_ground(look.background),
      m_outline(placedOutline(m_text, size.pixels(), font)),
      m_coverage(std::make_shared<const OutlineCoverage>(m_outline))
{
}

void LabeledPicture::readRow(int row, std::span<unsigned char> rgba) const
{
    const QSize pixels = m_size.pixels();
    const auto put = [&rgba](int column, const std::array<unsigned char, 4> &color) {
        std::ranges::copy(color, rgba.subspan(static_cast<std::size_t>(column) * 4, 4).begin());
    };
    const auto ground = mixed(m_ink, m_ground, 0);
    for (int column = 0; column < pixels.width(); ++column)
        put(column, ground);

    const QRect label = m_coverage->bounds().intersected(QRect(QPoint(0, 0), pixels));
    if (label.isEmpty() || row < label.top() || row > label.bottom())
        return;
    std::vector<unsigned char> coverage(static_cast<std::size_t>(m_coverage->bounds().width()));
    m_coverage->readRow(row, coverage);
    for (int column = label.left(); column <= label.right(); ++column) {
        const unsigned char covered = coverage[static_cast<std::size_t>(column - m_coverage->bounds().left())];
        if (covered > 0)
            put(column, mixed(m_ink, m_ground, covered));
    }
}

QImage LabeledPicture::toImage() const
{
    QImage image(m_size.pixels(), QImage::Format_RGBA8888);
    for (int row = 0; row < image.height(); ++row)
        readRow(row, {image.scanLine(row), static_cast<std::size_t>(image.bytesPerLine())});
    return image;
}

QByteArray LabeledPicture::toSvg() const
{
    const QSize points = m_size.points;
    const QPainterPath outline = QTransform::fromScale(1.0 / m_size.scale, 1.0 / m_size.scale).map(m_outline);
    const QString text =
        u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        u"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%2\" viewBox=\"0 0 %1 %2\" role=\"img\">\n"
        u"<title>%3</title>\n"
        u"<rect width=\"%1\" height=\"%2\" %4/>\n"
        u"<path %5 d=\"%6\"/>\n"
        u"</svg>\n"_s;
    return text
        .arg(QString::number(points.width()), QString::number(points.height()), m_text.toHtmlEscaped(), fill(m_ground),
             fill(m_ink), pathData(outline))
        .toUtf8();
}

QString withoutShape(const QString &text, const LabelFont &font)
{
    QString missing;
    for (const QChar character : text) {
        if (character != u'\n' && !missing.contains(character) && !font.hasShape(character))
            missing += character;
    }
    return missing;
}

} // namespace lumora
