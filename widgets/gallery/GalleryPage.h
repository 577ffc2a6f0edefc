// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QGridLayout;

namespace lumora::gallery
{

/// A page of rows: a label at the left, then the control in each of its states.
class GalleryPage : public QWidget
{
    Q_OBJECT
public:
    explicit GalleryPage(QWidget *parent = nullptr);

protected:
    /// Names the columns; all of them become equally wide.
    void addHeadings(const QStringList &headings);
    /// Adds a row; the page owns the controls from then on.
    void addRow(const QString &title, const QList<QWidget *> &controls);
    /// Replaces the control by a picture of its present look: for states that only one control at a time can have.
    void photograph(QWidget *control);

    /// Sends a control the events of a pointer that moves over it.
    static void hover(QWidget *control);
    /// The same, and holds the left button down.
    static void press(QWidget *control);

private:
    QGridLayout *m_rows;
};

} // namespace lumora::gallery
