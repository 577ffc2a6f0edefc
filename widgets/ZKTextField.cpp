// SPDX-License-Identifier: MIT
#include "ZKTextField.h"

#include "widgets/Fonts.h"
#include "widgets/Palette.h"
#include "widgets/TextFieldGeometry.h"
#include "widgets/ZKFieldEditor.h"
#include "widgets/ZKSecureGlyphGenerator.h"
#include "widgets/ZKTextFieldAccessible.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>

#include <utility>

namespace lumora
{

namespace
{

/// Escape belongs to what the field stands in, and a modifier alone means nothing yet.
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

ZKTextField::ZKTextField(QWidget *parent)
    : QWidget(parent), m_stringAttributes{latoBold(13), palette::chromeText},
      m_placeholderAttributes{latoRegular(13), palette::placeholderText},
      m_selectedAttributes{palette::selectedText, palette::selectedTextBackground},
      m_backgroundColor(palette::textFieldBackground)
{
    ZKTextFieldAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setAcceptDrops(true);
    setCursor(Qt::IBeamCursor);
    setMinimumSize(textfieldgeometry::minimumSize);
    setSizePolicy({QSizePolicy::Expanding, QSizePolicy::Fixed, QSizePolicy::LineEdit});
}

void ZKTextField::setString(const QString &string)
{
    if (string == m_string)
        return;
    m_string = string;
    m_bullets = ZKSecureGlyphGenerator().glyphsForString(string);
    if (m_currentFieldEditor != nullptr && m_currentFieldEditor->text() != string)
        m_currentFieldEditor->setText(string);
    update();
    QAccessibleValueChangeEvent changed(this, m_secure ? m_bullets : m_string);
    QAccessible::updateAccessibility(&changed);
}

void ZKTextField::setAttributedString(const AttributedString &string)
{
    setStringAttributes(string.attributes);
    setString(string.string);
}

void ZKTextField::setPlaceholderString(const QString &string)
{
    if (string == m_placeholder)
        return;
    m_placeholder = string;
    update();
}

void ZKTextField::setAttributedPlaceholderString(const AttributedString &string)
{
    setPlaceholderStringAttributes(string.attributes);
    setPlaceholderString(string.string);
}

void ZKTextField::setStringAttributes(const TextAttributes &attributes)
{
    m_stringAttributes = attributes;
    styleFieldEditor();
    update();
}

void ZKTextField::setPlaceholderStringAttributes(const TextAttributes &attributes)
{
    m_placeholderAttributes = attributes;
    update();
}

void ZKTextField::setSelectedStringAttributes(const SelectionAttributes &attributes)
{
    m_selectedAttributes = attributes;
    styleFieldEditor();
}

void ZKTextField::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    update();
}

void ZKTextField::setDrawsBackground(bool draws)
{
    m_drawsBackground = draws;
    update();
}

void ZKTextField::setDrawsBorder(bool draws)
{
    m_drawsBorder = draws;
    update();
}

void ZKTextField::setHasHoverCursor(bool has)
{
    m_hasHoverCursor = has;
    setCursor(has ? Qt::IBeamCursor : Qt::ArrowCursor);
}

void ZKTextField::setSecure(bool secure)
{
    if (secure == m_secure)
        return;
    // An editor that has shown the text begins anew.
    endEditing();
    m_secure = secure;
    update();
}

void ZKTextField::setShouldClipContent(bool clip)
{
    m_shouldClipContent = clip;
    update();
}

void ZKTextField::setShouldShowFocus(bool show)
{
    m_shouldShowFocus = show;
    update();
}

void ZKTextField::setEditable(bool editable)
{
    m_editable = editable;
    styleFieldEditor();
}

void ZKTextField::setSelectable(bool selectable)
{
    m_selectable = selectable;
}

void ZKTextField::setFrame(const QRect &frame)
{
    // No bound on the maximum.
    setGeometry(
        {frame.topLeft(), textfieldgeometry::clampedSize(frame.size(), textfieldgeometry::minimumSize, QSize(0, 0))});
    placeFieldEditor();
}

void ZKTextField::beginEditing()
{
    configureFieldEditor(Qt::OtherFocusReason);
}

void ZKTextField::endEditing()
{
    if (m_currentFieldEditor == nullptr)
        return;
    ZKFieldEditor *editor = std::exchange(m_currentFieldEditor, nullptr);
    editor->disconnect(this);
    // Hiding what has the focus would hand it on.
    if (editor->hasFocus())
        takeFocusQuietly();
    editor->hide();
    editor->deleteLater();
    m_passesMouse = false;
    update();
}

void ZKTextField::takeFocusQuietly()
{
    m_takesFocusQuietly = true;
    setFocus(Qt::OtherFocusReason);
    m_takesFocusQuietly = false;
}

void ZKTextField::configureFieldEditor(Qt::FocusReason reason)
{
    if (m_currentFieldEditor != nullptr || !acceptsFirstResponder())
        return;
    m_currentFieldEditor = new ZKFieldEditor(this);
    m_currentFieldEditor->setSecure(m_secure);
    m_currentFieldEditor->setText(m_string);
    styleFieldEditor();
    connect(m_currentFieldEditor, &QLineEdit::textEdited, this, &ZKTextField::textDidChange);
    connect(m_currentFieldEditor, &ZKFieldEditor::insertNewline, this, &ZKTextField::insertNewline);
    connect(m_currentFieldEditor, &ZKFieldEditor::insertTab, this, &ZKTextField::insertTab);
    connect(m_currentFieldEditor, &ZKFieldEditor::textDidEndEditing, this, &ZKTextField::endEditing);
    if (!m_selectable)
        connect(m_currentFieldEditor, &QLineEdit::selectionChanged, m_currentFieldEditor, &QLineEdit::deselect);
    m_currentFieldEditor->show();
    m_currentFieldEditor->setFocus(reason);
    update();
}

void ZKTextField::styleFieldEditor()
{
    if (m_currentFieldEditor == nullptr)
        return;
    m_currentFieldEditor->setFont(m_stringAttributes.font);
    m_currentFieldEditor->setAlignment((m_stringAttributes.alignment & Qt::AlignHorizontal_Mask) | Qt::AlignTop);
    m_currentFieldEditor->setReadOnly(!m_editable);
    m_currentFieldEditor->setCursor(m_hasHoverCursor ? Qt::IBeamCursor : Qt::ArrowCursor);
    m_currentFieldEditor->setAccessibleName(accessibleName().isEmpty() ? m_placeholder : accessibleName());
    QPalette colors = m_currentFieldEditor->palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Text, m_stringAttributes.color);
    colors.setColor(QPalette::Highlight, m_selectedAttributes.backgroundColor);
    colors.setColor(QPalette::HighlightedText, m_selectedAttributes.color);
    m_currentFieldEditor->setPalette(colors);
    placeFieldEditor();
}

void ZKTextField::textDidChange()
{
    setString(m_currentFieldEditor->text());
    if (m_continuous)
        sendAction();
}

void ZKTextField::insertNewline()
{
    setString(m_currentFieldEditor->text());
    const QPointer<ZKTextField> alive(this);
    sendAction();
    if (alive)
        endEditing();
}

void ZKTextField::insertTab(bool forward)
{
    endEditing();
    focusNextPrevChild(forward);
}

void ZKTextField::sendAction()
{
    emit action(this);
}

bool ZKTextField::event(QEvent *event)
{
    // What the layout asks for takes the minimum that the field has as a widget, so nothing more is to be clamped here.
    if (event->type() == QEvent::ShortcutOverride && !isEditing() && acceptsFirstResponder()) {
        // A typed character begins to edit rather than trigger a shortcut of the window.
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
    // What the editor has no use for comes here too.
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

void ZKTextField::dragEnterEvent(QDragEnterEvent *event)
{
    if (m_editable && event->mimeData()->hasText())
        event->acceptProposedAction();
    else
        event->ignore();
}

void ZKTextField::dropEvent(QDropEvent *event)
{
    if (!m_editable || !event->mimeData()->hasText()) {
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
