// SPDX-License-Identifier: MIT
#include "ZKTextField.h"

#include "TextFieldGeometry.h"
#include "ZKFieldEditor.h"
#include "ZKSecureGlyphGenerator.h"
#include "ZKTextFieldAccessible.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/InstallAccessible.h"
#include "widgets/style/Palette.h"

#include <QPointer>

#include <utility>

namespace lumora
{

ZKTextField::ZKTextField(QWidget *parent)
    : QWidget(parent), m_stringAttributes{latoBold(13), palette::chromeText},
      m_placeholderAttributes{latoRegular(13), palette::placeholderText},
      m_selectedAttributes{palette::selectedText, palette::selectedTextBackground},
      m_backgroundColor(palette::textFieldBackground)
{
    installAccessible<ZKTextField, ZKTextFieldAccessible>();
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
    const QString before = m_secure ? m_bullets : m_string;
    m_string = string;
    m_bullets = ZKSecureGlyphGenerator().glyphsForString(string);
    if (m_currentFieldEditor != nullptr && m_currentFieldEditor->text() != string)
        m_currentFieldEditor->setText(string);
    update();
    // A text update, since a value change of a text would not reach screen readers.
    QAccessibleTextUpdateEvent changed(this, 0, before, m_secure ? m_bullets : m_string);
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
    // A new editor, since the old one has shown the text.
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
    // 0 means no maximum.
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
    // Hiding the widget that has the focus would give the focus to the next one.
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

} // namespace lumora
