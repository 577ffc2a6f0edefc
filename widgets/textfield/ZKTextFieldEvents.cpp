// SPDX-License-Identifier: MIT
// The events that begin the editing of a text field, and how they reach the editor.
#include "ZKFieldEditor.h"
#include "ZKTextField.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>

namespace lumora
{

namespace
{

/// Escape is for the window around the field, and a modifier key alone does nothing.
bool beginsEditing(int key)
{
    switch (key) {
    case Qt::Key_Escape:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
        return false;
    default:
        return true;
    }
}

} // namespace

bool ZKTextField::event(QEvent *event)
{
    // The layout already respects the widget's minimum size, so nothing else is clamped here.
    if (event->type() == QEvent::ShortcutOverride && !isEditing() && acceptsFirstResponder()) {
        // A typed character begins editing instead of triggering a shortcut of the window.
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool plain = (key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
        if (plain && !key->text().isEmpty() && key->text().at(0).isPrint()) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void ZKTextField::mousePressEvent(QMouseEvent *event)
{
    if (!acceptsFirstResponder()) {
        QWidget::mousePressEvent(event);
        return;
    }
    configureFieldEditor(Qt::MouseFocusReason);
    if (m_currentFieldEditor)
        m_currentFieldEditor->beginWithPress(*event);
    m_passesMouse = true;
    passToEditor(event);
}

void ZKTextField::mouseMoveEvent(QMouseEvent *event)
{
    if (m_passesMouse)
        passToEditor(event);
    else
        QWidget::mouseMoveEvent(event);
}

void ZKTextField::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_passesMouse) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    passToEditor(event);
    m_passesMouse = false;
}

void ZKTextField::passToEditor(QMouseEvent *event)
{
    if (m_currentFieldEditor == nullptr)
        return;
    QMouseEvent passed(event->type(), m_currentFieldEditor->mapFrom(this, event->position()), event->globalPosition(),
                       event->button(), event->buttons(), event->modifiers());
    QCoreApplication::sendEvent(m_currentFieldEditor, &passed);
}

void ZKTextField::keyPressEvent(QKeyEvent *event)
{
    // Keys that the editor ignores also arrive here.
    if (isEditing() || !acceptsFirstResponder() || !beginsEditing(event->key())) {
        QWidget::keyPressEvent(event);
        return;
    }
    beginEditing();
    QCoreApplication::sendEvent(m_currentFieldEditor, event);
}

void ZKTextField::inputMethodEvent(QInputMethodEvent *event)
{
    if (isEditing() || !acceptsFirstResponder()) {
        QWidget::inputMethodEvent(event);
        return;
    }
    beginEditing();
    QCoreApplication::sendEvent(m_currentFieldEditor, event);
}

void ZKTextField::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
    const bool comesBack = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason ||
                           event->reason() == Qt::MenuBarFocusReason;
    if (!m_takesFocusQuietly && !comesBack)
        configureFieldEditor(event->reason());
}

void ZKTextField::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

void ZKTextField::contextMenuEvent(QContextMenuEvent *event)
{
    if (isEditing() || !acceptsFirstResponder()) {
        QWidget::contextMenuEvent(event);
        return;
    }
    beginEditing();
    QContextMenuEvent passed(event->reason(), m_currentFieldEditor->mapFrom(this, event->pos()), event->globalPos(),
                             event->modifiers());
    QCoreApplication::sendEvent(m_currentFieldEditor, &passed);
}

/// A dropped file also has a text, its name, but it is meant for the drop area below the field.
bool ZKTextField::takesDrop(const QMimeData &content) const
{
    return m_editable && content.hasText() && !content.hasUrls();
}

void ZKTextField::dragEnterEvent(QDragEnterEvent *event)
{
    if (takesDrop(*event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void ZKTextField::dropEvent(QDropEvent *event)
{
    if (!takesDrop(*event->mimeData())) {
        event->ignore();
        return;
    }
    beginEditing();
    m_currentFieldEditor->setCursorPosition(
        m_currentFieldEditor->cursorPositionAt(m_currentFieldEditor->mapFrom(this, event->position().toPoint())));
    m_currentFieldEditor->insert(event->mimeData()->text());
    event->acceptProposedAction();
}

void ZKTextField::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeFieldEditor();
}

void ZKTextField::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        if (!isEnabled())
            endEditing();
        setCursor(isEnabled() && m_hasHoverCursor ? Qt::IBeamCursor : Qt::ArrowCursor);
        update();
    }
}

} // namespace lumora
