// SPDX-License-Identifier: MIT
#include "ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace lumora
{

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && fontMetrics().horizontalAdvance(text()) > width())
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text().toHtmlEscaped(), this);
    else
        return QLabel::event(event);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), alignment());
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.drawText(rect(), static_cast<int>(side | Qt::AlignAbsolute) | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, width()));
}

} // namespace lumora
