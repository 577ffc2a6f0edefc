// SPDX-License-Identifier: MIT
#include "NamedImage.h"

#include "resources/Resources.h"

#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <memory>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The parsed picture of a name, nullptr if there is none; parsed once.
QSvgRenderer *rendererOf(const QString &name)
{
    static QHash<QString, std::shared_ptr<QSvgRenderer>> renderers;
    const auto known = renderers.constFind(name);
    if (known != renderers.cend())
        return known->get();
    loadResources();
    const QString path = u":/images/"_s + name + u".svg"_s;
    std::shared_ptr<QSvgRenderer> renderer;
    if (QFile::exists(path)) {
        renderer = std::make_shared<QSvgRenderer>(path);
        if (!renderer->isValid())
            renderer.reset();
    }
    renderers.insert(name, renderer);
    return renderer.get();
}

class NamedImageIconEngine final : public QIconEngine
{
public:
    explicit NamedImageIconEngine(NamedImage image) : m_image(std::move(image)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const QSizeF fitted = m_image.size().scaled(rect.size(), Qt::KeepAspectRatio);
        QRectF target(QPointF(), fitted);
        target.moveCenter(QRectF(rect).center());
        m_image.paint(painter, target, mode == QIcon::Disabled ? 0.4 : 1.0);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine *clone() const override { return new NamedImageIconEngine(m_image); }

private:
    NamedImage m_image;
};

} // namespace

QSizeF NamedImage::size() const
{
    const QSvgRenderer *renderer = m_name.isEmpty() ? nullptr : rendererOf(m_name);
    return renderer == nullptr ? QSizeF() : QSizeF(renderer->defaultSize());
}

QPixmap NamedImage::pixmap(const QSizeF &size, qreal devicePixelRatio) const
{
    const QSize pixels = (size * devicePixelRatio).toSize();
    if (isNull() || pixels.isEmpty())
        return {};
    const QString key =
        u"lumora/%1/%2x%3/%4"_s.arg(m_name).arg(pixels.width()).arg(pixels.height()).arg(devicePixelRatio);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap(pixels);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        rendererOf(m_name)->render(&painter, QRectF(QPointF(), pixels));
        painter.end();
        pixmap.setDevicePixelRatio(devicePixelRatio);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

void NamedImage::paint(QPainter *painter, const QRectF &target, qreal opacity) const
{
    // Taken from the transformation: a widget that is drawn into a picture has the picture's scale, not its screen's.
    const QPixmap picture = pixmap(target.size(), painter->deviceTransform().m11());
    if (picture.isNull())
        return;
    const qreal before = painter->opacity();
    painter->setOpacity(before * opacity);
    painter->drawPixmap(target, picture, QRectF(picture.rect()));
    painter->setOpacity(before);
}

QIcon NamedImage::icon() const
{
    return isNull() ? QIcon() : QIcon(new NamedImageIconEngine(*this));
}

} // namespace lumora
