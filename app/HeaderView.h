// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRect>
#include <QWidget>

class QLabel;

namespace lumora
{

class StyledText;
class ColorBand;
class ImageButton;

/// How far below the title bar the header's popups point; points.
constexpr int popupAnchorBelowTitleBar = 20;

/// The point at which a header button's popup points, from the window's lower left corner, y upwards. The button's
/// frame is in the title bar's coordinates, also y upwards.
QPointF headerPopupAnchor(const QRectF &buttonFrame, qreal windowHeight, qreal titleBarHeight);

/// The layout of the header's parts in a title bar of the size, y down.
struct HeaderLayout
{
    QRect band;
    QRect title;
    QRect topBorder;
    QRect infoButton;
    QRect iconButton;

    static HeaderLayout forSize(QSize titleBar);
};

/// The cover of the window's title bar: a band in the tool's color with the title in its middle, a border below it and
/// two buttons at its right end.
class HeaderView final : public QWidget
{
    Q_OBJECT

public:
    explicit HeaderView(QWidget *parent = nullptr);

    ColorBand *curBackgroundColor() const { return m_band; }
    ColorBand *topBorderView() const { return m_topBorder; }
    QLabel *titleLabel() const { return m_title; }
    ImageButton *infoButton() const { return m_infoButton; }
    ImageButton *iconButton() const { return m_iconButton; }

    void setTitle(const StyledText &title);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    ColorBand *m_band;
    QLabel *m_title;
    ColorBand *m_topBorder;
    ImageButton *m_infoButton;
    ImageButton *m_iconButton;
};

} // namespace lumora
