// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

namespace lumora
{

class ZKTextField;

/// Presents a text field to screen readers: its name, its text and how to change it. A secret text is read as bullets.
/// While the field is edited, its editor has its own interface.
class ZKTextFieldAccessible final : public QAccessibleWidget,
                                    public QAccessibleTextInterface,
                                    public QAccessibleEditableTextInterface
{
public:
    explicit ZKTextFieldAccessible(ZKTextField *field);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QAccessible::State state() const override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return characterCount(); }
    void setCursorPosition(int) override {}
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint &) const override { return characterCount(); }
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int *start, int *end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString &text) override;
    void replaceText(int start, int end, const QString &text) override;

private:
    ZKTextField *field() const;
    /// The text for screen readers, bullets for a secret one.
    QString shown() const;
};

} // namespace lumora
