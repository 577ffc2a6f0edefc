// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QWidget>

namespace lumora
{

class INAppStoreWindow;

/// Draws the title bar of its window, by the window's settings, and miniaturises the window on a double-click where the
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
    const INAppStoreWindow *appStoreWindow() const;
    QPainterPath clippingPath() const;
    void drawBackground(QPainter *painter, const INAppStoreWindow &window) const;
    void drawBaselineSeparator(QPainter *painter, const INAppStoreWindow &window) const;
    void drawTitle(QPainter *painter, const INAppStoreWindow &window) const;

    int m_clickCount = 0;
};

} // namespace lumora
