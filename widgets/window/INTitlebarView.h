// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPixmap>
#include <QWidget>

namespace lumora
{

class INAppStoreWindow;

/// Draws the title bar of its window, by the window's settings, and miniaturizes the window on a double-click where the
/// user wants that. A window's custom content is added to it as children.
class INTitlebarView : public QWidget
{
    Q_OBJECT

public:
    explicit INTitlebarView(QWidget *parent = nullptr);

    /// The window is the main one and the application is active.
    bool drawsAsMainWindow() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    /// What the background was drawn for; for any other it is drawn again.
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

    int m_clickCount = 0;
    /// Kept from one repaint to the next: a gradient of this size with noise over it takes several times as long to
    /// draw as to copy.
    Background m_background;
    QPixmap m_drawn;
};

} // namespace lumora
