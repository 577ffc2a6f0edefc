// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace lumora
{

/// The line editor over a text field while it is edited. It has no look of its own; the field handles return, tab and
/// the loss of the focus.
class ZKFieldEditor final : public QLineEdit
{
    Q_OBJECT
public:
    explicit ZKFieldEditor(QWidget *field);

    /// Shows bullets, and keeps the text out of the clipboard and of the input method's memory.
    void setSecure(bool secure);
    /// Sets the press that the field got before the editor appeared under it. A second press soon after is a double
    /// click, although the system sees presses on two widgets.
    void beginWithPress(const QMouseEvent &press);

signals:
    void insertNewline();
    /// Tab was pressed, or Shift+Tab for false.
    void insertTab(bool forward);
    void textDidEndEditing();

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;

private:
    /// The place on screen and the time in milliseconds of the press that the field got; the time is 0 after the next
    /// press.
    QPointF m_firstPress;
    quint64 m_firstPressTime = 0;
};

} // namespace lumora
