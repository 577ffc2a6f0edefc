// SPDX-License-Identifier: MIT
#include "DropHighlight.h"

#include "DropView.h"
#include "widgets/style/Palette.h"

#include <QEvent>
#include <QPainter>

namespace lumora
{

namespace
{

constexpr qreal lineWidth = 2;
constexpr qreal cornerRadius = 8; ///< the same as that of the panels beside it
constexpr float fillOpacity = 0.12F;
/// A dash and a gap, in line widths.
const QList<qreal> dashes = {4, 3};

} // namespace

DropHighlight::DropHighlight(DropView *dropView, const QColor &color)
    : QWidget(dropView), m_dropView(dropView), m_isOutlined(true), m_color(color)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(dropView->rect());
    lower();
    dropView->installEventFilter(this);
    connect(dropView, &DropView::targetedChanged, this, qOverload<>(&QWidget::update));
}

DropHighlight::DropHighlight(DropView *dropView, const QColor &color, QWidget *above)
    : QWidget(above), m_dropView(dropView), m_isOutlined(false), m_color(color)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(above->rect());
    hide();
    above->installEventFilter(this);
    connect(dropView, &DropView::targetedChanged, this, [this](bool targeted) {
        raise();
        setVisible(targeted);
    });
}

bool DropHighlight::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void DropHighlight::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool targeted = !m_isOutlined || m_dropView->isTargeted();
    QPen pen(targeted ? m_color : palette::panelOutline, lineWidth);
    if (!targeted)
        pen.setDashPattern(dashes);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    QColor fill = m_color;
    fill.setAlphaF(fillOpacity);
    painter.setBrush(targeted ? QBrush(fill) : Qt::NoBrush);
    const qreal inset = lineWidth / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
}

} // namespace lumora
