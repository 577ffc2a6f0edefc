// SPDX-License-Identifier: MIT
#include "PreviewTile.h"

#include "widgets/style/AccessibleRole.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int tileWidth = 80;
constexpr int gap = 4;
constexpr int captionHeight = 16;
constexpr int captionSize = 11;
constexpr qreal ringWidth = 2;

QString nameOf(PreviewPlace place)
{
    switch (place) {
    case PreviewPlace::IosLight:
        return qtTrId("ICONS_SEEN_LIGHT");
    case PreviewPlace::IosDark:
        return qtTrId("ICONS_SEEN_DARK");
    case PreviewPlace::IosTinted:
        return qtTrId("ICONS_SEEN_TINTED");
    case PreviewPlace::AndroidCircle:
        return qtTrId("ICONS_SEEN_CIRCLE");
    case PreviewPlace::AndroidSquircle:
        return qtTrId("ICONS_SEEN_SQUIRCLE");
    case PreviewPlace::AndroidRoundedSquare:
        return qtTrId("ICONS_SEEN_ROUNDED");
    case PreviewPlace::AndroidTeardrop:
        return qtTrId("ICONS_SEEN_TEARDROP");
    case PreviewPlace::Mac:
        return qtTrId("ICONS_MAC");
    case PreviewPlace::WebMaskable:
        break;
    }
    return qtTrId("ICONS_SEEN_MASKABLE");
}

/// With the platform where the name below the picture leaves it out.
QString wholeNameOf(PreviewPlace place)
{
    const bool isAndroid = place >= PreviewPlace::AndroidCircle && place <= PreviewPlace::AndroidTeardrop;
    return isAndroid ? qtTrId("ICONS_ANDROID") + u", "_s + nameOf(place) : nameOf(place);
}

} // namespace

PreviewTile::PreviewTile(PreviewPlace place, QWidget *parent) : QWidget(parent)
{
    m_preview.place = place;
    setAccessibleRole(this, QAccessible::Graphic);
    // Only what has something to show for it takes the keyboard.
    const bool isMasked = place != PreviewPlace::Mac && place > PreviewPlace::IosTinted;
    setFocusPolicy(isMasked ? Qt::TabFocus : Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    describe();
}

void PreviewTile::setPreview(const IconPreview &preview)
{
    m_preview = preview;
    describe();
    update();
}

void PreviewTile::describe()
{
    setAccessibleName(wholeNameOf(m_preview.place));
    QString more;
    if (m_preview.isMadeBySystem)
        more = qtTrId("ICONS_SEEN_BY_SYSTEM");
    else if (!m_preview.safeZone.isEmpty())
        more = qtTrId("ICONS_SEEN_SAFE_ZONE");
    setAccessibleDescription(more);
    setToolTip(more.isEmpty() ? accessibleName() : accessibleName() + u": "_s + more);
}

QSize PreviewTile::sizeHint() const
{
    return {tileWidth, side + gap + captionHeight};
}

QRectF PreviewTile::pictureArea() const
{
    // On the pixel grid, so that nothing is resampled.
    return QRect((width() - side) / 2, 0, side, side);
}

bool PreviewTile::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        update();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void PreviewTile::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = pictureArea();
    if (!m_preview.picture.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(area, m_preview.picture);
    }
    if (showsSafeZone()) {
        const QRectF &zone = m_preview.safeZone;
        const QRectF circle(area.x() + zone.x() * side, area.y() + zone.y() * side, zone.width() * side,
                            zone.height() * side);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette::focusRingInner, ringWidth + 1));
        painter.drawEllipse(circle);
        painter.setPen(QPen(palette::errorDark, ringWidth, Qt::DashLine));
        painter.drawEllipse(circle);
    }
    painter.setFont(latoBold(captionSize));
    painter.setPen(hasFocus() ? palette::linkText : palette::chromeText);
    const QRectF caption(0, side + gap, width(), captionHeight);
    const QString name = nameOf(m_preview.place);
    painter.drawText(caption, Qt::AlignHCenter | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(name, Qt::ElideRight, width()));
}

} // namespace lumora
