// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPixmap>
#include <QWidget>

namespace lumora
{

class INAppStoreWindow;

/// Draws the title bar of its window by the window's settings. A window's custom content becomes its children.
class INTitlebarView : public QWidget
{
    Q_OBJECT

public:
    explicit INTitlebarView(QWidget *parent = nullptr);

    /// Whether the window is the main one and the application is active.
    bool drawsAsMainWindow() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// The settings for which the background was drawn; it is drawn again when they change.
    struct Background
    {
        QColor top;
        QColor bottom;
        bool main = false;
        QSize size;
        qreal devicePixelRatio = 1;

        bool operator==(const Background &) const = default;
    };

    const INAppStoreWindow *appStoreWindow() const;
    QPainterPath clippingPath() const;
    Background background(const INAppStoreWindow &window, qreal devicePixelRatio) const;
    QPixmap drawn(const Background &background) const;
    void drawBackground(QPainter *painter, const INAppStoreWindow &window);
    void drawBaselineSeparator(QPainter *painter, const INAppStoreWindow &window) const;
    void drawTitle(QPainter *painter, const INAppStoreWindow &window) const;

    /// Kept from one repaint to the next: drawing a gradient of this size with noise takes several times as long as
    /// copying it.
    Background m_background;
    QPixmap m_drawn;
};

} // namespace lumora
