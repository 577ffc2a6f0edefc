// SPDX-License-Identifier: MIT
#include "DeviceViews.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace lumora
{

namespace
{

constexpr int labelFontSize = 13;

/// Pictures are graphics and labels texts to a screen reader.
QAccessibleInterface *accessibleOf(const QString &, QObject *object)
{
    if (auto *picture = qobject_cast<DevicePicture *>(object))
        return new QAccessibleWidget(picture, QAccessible::Graphic);
    if (auto *label = qobject_cast<DeviceLabel *>(object))
        return new QAccessibleWidget(label, QAccessible::StaticText, label->text());
    return nullptr;
}

void installAccessible()
{
    static const bool installed = [] {
        QAccessible::installFactory(accessibleOf);
        return true;
    }();
    Q_UNUSED(installed)
}

} // namespace

DevicePicture::DevicePicture(const NamedImage &image, QWidget *parent) : FadingView(parent), m_image(image)
{
    installAccessible();
}

void DevicePicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QSizeF fitted = m_image.size().scaled(QSizeF(size()), Qt::KeepAspectRatio);
    QRectF target(QPointF(), fitted);
    target.moveCenter(QRectF(rect()).center());
    m_image.paint(&painter, target, static_cast<qreal>(alphaValue()));
}

DeviceLabel::DeviceLabel(const QString &text, QWidget *parent) : FadingView(parent), m_text(text)
{
    installAccessible();
    setFont(latoBold(labelFontSize));
}

void DeviceLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(static_cast<qreal>(alphaValue()));
    painter.setPen(palette::chromeText);
    painter.drawText(rect(), Qt::AlignCenter, m_text);
}

} // namespace lumora
