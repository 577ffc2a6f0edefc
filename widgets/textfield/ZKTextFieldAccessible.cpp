// SPDX-License-Identifier: MIT
#include "ZKTextFieldAccessible.h"

#include "ZKSecureGlyphGenerator.h"
#include "ZKTextField.h"

#include <algorithm>

namespace lumora
{

ZKTextFieldAccessible::ZKTextFieldAccessible(ZKTextField *field) : QAccessibleWidget(field, QAccessible::EditableText)
{
}

void *ZKTextFieldAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString ZKTextFieldAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return shown();
    if (kind == QAccessible::Name) {
        const QString name = QAccessibleWidget::text(kind);
        return name.isEmpty() ? field()->placeholderString() : name;
    }
    return QAccessibleWidget::text(kind);
}

void ZKTextFieldAccessible::setText(QAccessible::Text kind, const QString &text)
{
    if (kind == QAccessible::Value)
        replaceText(0, characterCount(), text);
    else
        QAccessibleWidget::setText(kind, text);
}

QAccessible::State ZKTextFieldAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = field()->isEditable();
    state.readOnly = !field()->isEditable();
    state.selectableText = field()->isSelectable();
    state.passwordEdit = field()->isSecure();
    return state;
}

void ZKTextFieldAccessible::selection(int, int *start, int *end) const
{
    *start = 0;
    *end = 0;
}

QString ZKTextFieldAccessible::text(int start, int end) const
{
    return shown().mid(start, end - start);
}

int ZKTextFieldAccessible::characterCount() const
{
    return static_cast<int>(field()->string().size());
}

QString ZKTextFieldAccessible::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

void ZKTextFieldAccessible::deleteText(int start, int end)
{
    replaceText(start, end, QString());
}

void ZKTextFieldAccessible::insertText(int offset, const QString &text)
{
    replaceText(offset, offset, text);
}

void ZKTextFieldAccessible::replaceText(int start, int end, const QString &text)
{
    if (!field()->isEditable() || !field()->isEnabled())
        return;
    start = std::clamp(start, 0, characterCount());
    end = std::clamp(end, start, characterCount());
    QString string = field()->string();
    field()->setString(string.replace(start, end - start, text));
    // A change by assistive technology is the user's change, too.
    if (field()->isContinuous())
        emit field()->action(field());
}

ZKTextField *ZKTextFieldAccessible::field() const
{
    return static_cast<ZKTextField *>(widget());
}

QString ZKTextFieldAccessible::shown() const
{
    return field()->isSecure() ? ZKSecureGlyphGenerator().glyphsForString(field()->string()) : field()->string();
}

} // namespace lumora
