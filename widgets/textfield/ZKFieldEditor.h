// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace lumora
{

/// The line editor that lies over a text field while it is edited. It has no look of its own, and leaves to the field
/// what return, tab and the loss of the focus mean.
class ZKFieldEditor final : public QLineEdit
{
    Q_OBJECT
public:
    explicit ZKFieldEditor(QWidget *field);

    /// Shows bullets, keeps the text from the clipboard and from what the input method learns.
    void setSecure(bool secure);
    /// This press went to the field, and the editor may have appeared under it: a second one soon after is a double
    /// click, though the system sees two presses of two widgets.
    void beginWithPress(const QMouseEvent &press);

signals:
    void insertNewline();
    /// Tab, or for false the way back.
    void insertTab(bool forward);
    void textDidEndEditing();

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    /// Of the press that went to the field; 0 after the next one. On screen and in milliseconds.
    QPointF m_firstPress;
    quint64 m_firstPressTime = 0;
};

} // namespace lumora
