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

signals:
    void insertNewline();
    /// Tab, or for false the way back.
    void insertTab(bool forward);
    void textDidEndEditing();

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

} // namespace lumora
