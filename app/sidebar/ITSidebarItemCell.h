// SPDX-License-Identifier: MIT
#pragma once

#include "TargetAction.h"
#include "widgets/style/NamedImage.h"

#include <QAbstractButton>
#include <QColor>

namespace lumora
{

/// One item of the sidebar: an image in the middle and a rounded frame while it is selected. Name it for screen
/// readers; it shows no text.
class ITSidebarItemCell : public QAbstractButton
{
    Q_OBJECT

public:
    struct Shadow
    {
        QPointF offset;
        QColor color;
        qreal blurRadius = 0;
    };

    explicit ITSidebarItemCell(QWidget *parent = nullptr);

    const NamedImage &image() const { return m_image; }
    void setImage(const NamedImage &image);
    /// Shown while the mouse is pressed on the item and while it is selected; if null, the image is shown instead.
    const NamedImage &alternateImage() const { return m_alternateImage; }
    void setAlternateImage(const NamedImage &image);

    TargetAction<ITSidebarItemCell> &targetAction() { return m_targetAction; }

    /// Marks the item with a dot: its tool has something new. Removed when the item is selected.
    bool hasBadge() const { return m_badge; }
    void setBadge(bool badge);

    /// Marks the item as the pointer does, while a drag over the window would go to its tool.
    bool isDropTarget() const { return m_dropTarget; }
    void setDropTarget(bool dropTarget);

    /// On means selected.
    bool state() const { return isChecked(); }
    bool isHighlighted() const { return isDown(); }
    /// The image for the present state.
    const NamedImage &shownImage() const;
    /// For subclasses that draw a background; the cell itself draws none.
    static Shadow shadow();
    /// The rectangle of the natural size, centered in the frame.
    static QRectF imageRect(const QRectF &frame, const QSizeF &imageSize);
    /// The middle of the selection's outline.
    static QRectF selectionRect(const QRectF &frame);

    QSize sizeHint() const override;

protected:
    /// Only the sidebar sets the selection.
    void nextCheckState() override {}
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void drawBackgroundWithFrame(QPainter *painter, const QRectF &frame) const;
    void drawInteriorWithFrame(QPainter *painter, const QRectF &frame) const;
    void drawImageWithFrame(QPainter *painter, const QRectF &frame) const;
    void drawImage(QPainter *painter, const NamedImage &image, const QRectF &withFrame) const;
    void drawSelectionWithFrame(QPainter *painter, const QRectF &frame) const;
    void drawBadgeWithFrame(QPainter *painter, const QRectF &frame) const;

    NamedImage m_image;
    NamedImage m_alternateImage;
    TargetAction<ITSidebarItemCell> m_targetAction;
    bool m_badge = false;
    bool m_dropTarget = false;
};

} // namespace lumora
