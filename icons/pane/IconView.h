// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>

namespace lumora
{

/// Shows a square picture: one pixel of the picture is one pixel of the screen. The owner renders the picture at
/// `pixelSide`, and again when that changes.
class IconView final : public QWidget
{
    Q_OBJECT

public:
    explicit IconView(QWidget *parent = nullptr);

    /// The edge length that fills the view, in pixels of its screen.
    int pixelSide() const;
    const QImage &picture() const { return m_picture; }
    void setPicture(const QImage &picture);

signals:
    /// The view was resized or moved to a screen of another scale.
    void pixelSideChanged();
    /// The view has been drawn for the first time.
    void firstPainted();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void noteSide();

    QImage m_picture;
    int m_notedSide = 0;
    bool m_painted = false;
};

} // namespace lumora
