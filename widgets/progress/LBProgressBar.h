// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace lumora
{

/// A rounded bar that fills with moving stripes.
///
/// The stripes advance with every redraw. While the bar animates and is visible it redraws itself thirty times a
/// second; otherwise no timer runs.
class LBProgressBar final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double doubleValue READ doubleValue WRITE setDoubleValue)
    Q_PROPERTY(double minValue READ minValue WRITE setMinValue)
    Q_PROPERTY(double maxValue READ maxValue WRITE setMaxValue)
    Q_PROPERTY(bool displayedWhenStopped READ isDisplayedWhenStopped WRITE setDisplayedWhenStopped)
    Q_PROPERTY(QColor lightColor READ lightColor WRITE setLightColor)
    Q_PROPERTY(QColor darkColor READ darkColor WRITE setDarkColor)
public:
    explicit LBProgressBar(QWidget *parent = nullptr);

    double doubleValue() const { return m_doubleValue; }
    /// Reaching the maximum stops the animation of a bar that is not displayed when stopped.
    void setDoubleValue(double value);
    double minValue() const { return m_minValue; }
    void setMinValue(double value);
    double maxValue() const { return m_maxValue; }
    void setMaxValue(double value);
    /// Whether the bar is drawn while it does not animate; true unless set otherwise.
    bool isDisplayedWhenStopped() const { return m_displayedWhenStopped; }
    void setDisplayedWhenStopped(bool displayed);

    /// The colors of the filled part and of its stripes.
    QColor lightColor() const { return m_lightColor; }
    void setLightColor(const QColor &color);
    QColor darkColor() const { return m_darkColor; }
    void setDarkColor(const QColor &color);

    /// The offset of the stripes, 0 to 20 points.
    double progressOffset() const { return m_progressOffset; }
    bool isAnimating() const { return m_animating; }
    /// Triggers the redraws; runs while the bar animates and is visible.
    const QTimer &animator() const { return m_animator; }

    void startAnimation();
    void stopAnimation();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void activateAnimation();
    void runAnimator();
    void drawRect(QPainter &painter);
    void drawBezel(QPainter &painter);
    QPixmap drawnBezel(qreal devicePixelRatio) const;
    void drawProgressWithBounds(QPainter &painter, const QRectF &bounds) const;
    void drawStripesInBounds(QPainter &painter, const QRectF &bounds);
    void drawShadowInBounds(QPainter &painter, const QRectF &bounds) const;
    /// From y-up points to the widget's coordinates; mirrored for text that runs from the right.
    QTransform toWidget() const;

    QTimer m_animator;
    /// Kept from one redraw to the next.
    QImage m_stripes;
    QPixmap m_bezel;
    QColor m_lightColor;
    QColor m_darkColor;
    double m_doubleValue = 0;
    double m_minValue = 0;
    double m_maxValue = 100;
    double m_progressOffset = 0;
    bool m_displayedWhenStopped = true;
    bool m_animating = false;
};

} // namespace lumora
