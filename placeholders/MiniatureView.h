// SPDX-License-Identifier: MIT
#pragma once

#include "MiniatureLayout.h"

#include <QList>
#include <QPainterPath>
#include <QWidget>

namespace lumora
{

/// Shows the placeholders that a run would write, all at the same scale, with the gray and the label that they will
/// have. Without placeholders it shows an empty frame.
class MiniatureView final : public QWidget
{
    Q_OBJECT

public:
    explicit MiniatureView(QWidget *parent = nullptr);

    /// The sizes of the pictures in pixels, in the order of writing.
    const QList<QSize> &pictures() const { return m_pictures; }
    void setPictures(const QList<QSize> &pictures);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();

    QList<QSize> m_pictures;
    QList<QPainterPath> m_labels; ///< in each picture's pixels
    QList<Miniature> m_miniatures;
};

} // namespace lumora
