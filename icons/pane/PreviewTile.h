// SPDX-License-Identifier: MIT
#pragma once

#include "icons/preview/IconPreviews.h"

#include <QWidget>

namespace lumora
{

/// One place in which the icon will be seen, with its name below. While the pointer is over it, or it has the
/// keyboard, the circle that every mask shows is drawn on it.
class PreviewTile final : public QWidget
{
    Q_OBJECT

public:
    /// Edge length of the picture in points.
    static constexpr int side = 60;

    PreviewTile(PreviewPlace place, QWidget *parent);

    PreviewPlace place() const { return m_preview.place; }
    const IconPreview &preview() const { return m_preview; }
    /// The picture is `side` points wide on this widget's screen.
    void setPreview(const IconPreview &preview);
    bool showsSafeZone() const { return !m_preview.safeZone.isEmpty() && (underMouse() || hasFocus()); }

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void describe();
    QRectF pictureArea() const;

    IconPreview m_preview;
};

} // namespace lumora
