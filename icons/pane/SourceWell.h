// SPDX-License-Identifier: MIT
#pragma once

#include "icons/preview/IconPreviews.h"
#include "tool/DropView.h"
#include "widgets/buttons/PaintedButton.h"

namespace lumora
{

class ImageButton;

/// Takes one of the sources besides the icon: a picture by drop or, after a click, by dialog; the background a color,
/// too. Shows what was given, else what is derived and that it is. The delete key and a small button return from what
/// was given to what is derived.
class SourceWell final : public PaintedButton, public DropViewDelegate
{
    Q_OBJECT

public:
    /// Edge length of the picture in points.
    static constexpr int side = 48;

    SourceWell(FurtherSource source, QWidget *parent);

    FurtherSource source() const { return m_preview.source; }
    const SourcePreview &preview() const { return m_preview; }
    /// The picture is `side` points wide on this widget's screen.
    void setPreview(const SourcePreview &preview);
    /// The name of the file that was given; empty for none.
    void setFileName(const QString &name);
    ImageButton *removeButton() const { return m_remove; }
    DropView *dropView() const { return m_dropView; }

    void dropViewReceivedFiles(const QStringList &files) override;
    void dropViewReceivedColor(const QColor &color) override { emit colorDropped(color); }

    QSize sizeHint() const override;

signals:
    void fileDropped(const QString &path);
    void colorDropped(const QColor &color);
    void removalWanted();

protected:
    void drawRect(QPainter &painter) override;
    void drawFocusRing(QPainter &painter) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void describe();
    QRectF pictureArea() const;

    SourcePreview m_preview;
    QString m_fileName;
    DropView *m_dropView; ///< hidden; judges the drags that the well passes on
    ImageButton *m_remove;
};

} // namespace lumora
