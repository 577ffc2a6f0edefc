// SPDX-License-Identifier: MIT
#include "GalleryPage.h"

#include "widgets/Fonts.h"
#include "widgets/Palette.h"

#include <QCoreApplication>
#include <QEnterEvent>
#include <QGridLayout>
#include <QLabel>

namespace lumora::gallery
{

GalleryPage::GalleryPage(QWidget *parent) : QWidget(parent), m_rows(new QGridLayout(this))
{
    m_rows->setContentsMargins(24, 20, 24, 20);
    m_rows->setHorizontalSpacing(24);
    m_rows->setVerticalSpacing(16);
}

void GalleryPage::addRow(const QString &title, const QList<QWidget *> &controls)
{
    const int row = m_rows->rowCount();
    auto *label = new QLabel(title);
    label->setFont(latoRegular(12));
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, palette::chromeText);
    label->setPalette(colors);
    m_rows->addWidget(label, row, 0);
    int column = 1;
    for (QWidget *control : controls)
        m_rows->addWidget(control, row, column++);
}

void GalleryPage::hover(QWidget *control)
{
    const QPointF middle = QRectF(control->rect()).center();
    QEnterEvent event(middle, middle, control->mapToGlobal(middle));
    QCoreApplication::sendEvent(control, &event);
}

void GalleryPage::press(QWidget *control)
{
    const QPointF middle = QRectF(control->rect()).center();
    const QPointF global = control->mapToGlobal(middle);
    QMouseEvent down(QEvent::MouseButtonPress, middle, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(control, &down);
    QMouseEvent up(QEvent::MouseButtonRelease, middle, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(control, &up);
}

} // namespace lumora::gallery
