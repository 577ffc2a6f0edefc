// SPDX-License-Identifier: MIT
#include "GalleryPage.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QCoreApplication>
#include <QEnterEvent>
#include <QGridLayout>
#include <QLabel>

namespace lumora::gallery
{

namespace
{

constexpr int columnWidth = 130;

QLabel *caption(const QString &text)
{
    auto *label = new QLabel(text);
    label->setFont(latoRegular(12));
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, palette::chromeText);
    label->setPalette(colors);
    return label;
}

void sendMouse(QWidget *control, QEvent::Type type, Qt::MouseButton button)
{
    const QPointF middle = QRectF(control->rect()).center();
    const Qt::MouseButtons held = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, middle, control->mapToGlobal(middle), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(control, &event);
}

} // namespace

GalleryPage::GalleryPage(QWidget *parent) : QWidget(parent), m_rows(new QGridLayout(this))
{
    m_rows->setContentsMargins(24, 12, 24, 12);
    m_rows->setHorizontalSpacing(24);
    m_rows->setVerticalSpacing(12);
}

void GalleryPage::addHeadings(const QStringList &headings)
{
    const int row = m_rows->rowCount();
    for (int column = 0; column < headings.size(); ++column) {
        m_rows->addWidget(caption(headings[column]), row, column + 1);
        m_rows->setColumnMinimumWidth(column + 1, columnWidth);
    }
}

void GalleryPage::addRow(const QString &title, const QList<QWidget *> &controls)
{
    const int row = m_rows->rowCount();
    m_rows->addWidget(caption(title), row, 0);
    int column = 1;
    for (QWidget *control : controls)
        m_rows->addWidget(control, row, column++);
}

void GalleryPage::photograph(QWidget *control)
{
    auto *shown = new QLabel;
    shown->setPixmap(control->grab());
    delete m_rows->replaceWidget(control, shown);
    control->hide();
    control->deleteLater();
}

void GalleryPage::hover(QWidget *control)
{
    const QPointF middle = QRectF(control->rect()).center();
    QEnterEvent event(middle, middle, control->mapToGlobal(middle));
    QCoreApplication::sendEvent(control, &event);
    sendMouse(control, QEvent::MouseMove, Qt::NoButton);
}

void GalleryPage::press(QWidget *control)
{
    hover(control);
    sendMouse(control, QEvent::MouseButtonPress, Qt::LeftButton);
}

} // namespace lumora::gallery
