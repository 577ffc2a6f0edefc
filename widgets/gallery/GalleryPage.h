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
    /// Names the columns; all of them become equally wide.
    void addHeadings(const QStringList &headings);
    /// Adds a row; the page takes the controls over.
    void addRow(const QString &title, const QList<QWidget *> &controls);
    /// Puts a picture of the control, as it looks now, in its place: for what only one control at a time can be.
    void photograph(QWidget *control);

    /// Tells a control that the pointer came over it, as a real pointer would.
    static void hover(QWidget *control);
    /// The same, and holds the left button down.
    static void press(QWidget *control);

private:
    QGridLayout *m_rows;
};

} // namespace lumora::gallery
