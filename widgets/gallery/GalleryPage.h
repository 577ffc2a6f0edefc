// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QGridLayout;

namespace lumora::gallery
{

/// A page of rows: what is shown at the left, the control in one state each to the right of it.
class GalleryPage : public QWidget
{
    Q_OBJECT
public:
    explicit GalleryPage(QWidget *parent = nullptr);

protected:
    /// Adds a row; the page takes the controls over.
    void addRow(const QString &title, const QList<QWidget *> &controls);

    /// Tells a control that the pointer came over it, as a real pointer would.
    static void hover(QWidget *control);
    /// Presses the left button over a control and lets it go.
    static void press(QWidget *control);

private:
    QGridLayout *m_rows;
};

} // namespace lumora::gallery
