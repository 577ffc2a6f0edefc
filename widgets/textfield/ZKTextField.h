// SPDX-License-Identifier: MIT
#pragma once

#include "AttributedString.h"

#include <QVariantMap>
#include <QWidget>

class QMimeData;

namespace lumora
{

class ZKFieldEditor;

/// A line of text in a white rounded box, drawn by the field itself. A press, a key, the focus or beginEditing() puts
/// an editor over the text; return, tab and the loss of the focus remove it.
///
/// action() is sent on return and, while the field is continuous, on every change the user makes; never for
/// setString().
class ZKTextField final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString string READ string WRITE setString)
    Q_PROPERTY(QString placeholderString READ placeholderString WRITE setPlaceholderString)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(bool drawsBackground READ drawsBackground WRITE setDrawsBackground)
    Q_PROPERTY(bool drawsBorder READ drawsBorder WRITE setDrawsBorder)
    Q_PROPERTY(bool hasHoverCursor READ hasHoverCursor WRITE setHasHoverCursor)
    Q_PROPERTY(bool secure READ isSecure WRITE setSecure)
    Q_PROPERTY(bool shouldClipContent READ shouldClipContent WRITE setShouldClipContent)
    Q_PROPERTY(bool shouldShowFocus READ shouldShowFocus WRITE setShouldShowFocus)
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable)
    Q_PROPERTY(bool selectable READ isSelectable WRITE setSelectable)
    Q_PROPERTY(bool continuous READ isContinuous WRITE setContinuous)
public:
    explicit ZKTextField(QWidget *parent = nullptr);

    const QString &string() const { return m_string; }
    void setString(const QString &string);
    AttributedString attributedString() const { return {m_string, m_stringAttributes}; }
    void setAttributedString(const AttributedString &string);
    const QString &placeholderString() const { return m_placeholder; }
    void setPlaceholderString(const QString &string);
    AttributedString attributedPlaceholderString() const { return {m_placeholder, m_placeholderAttributes}; }
    void setAttributedPlaceholderString(const AttributedString &string);

    const TextAttributes &stringAttributes() const { return m_stringAttributes; }
    void setStringAttributes(const TextAttributes &attributes);
    const TextAttributes &placeholderStringAttributes() const { return m_placeholderAttributes; }
    void setPlaceholderStringAttributes(const TextAttributes &attributes);
    const SelectionAttributes &selectedStringAttributes() const { return m_selectedAttributes; }
    void setSelectedStringAttributes(const SelectionAttributes &attributes);

    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);
    bool drawsBackground() const { return m_drawsBackground; }
    void setDrawsBackground(bool draws);
    bool drawsBorder() const { return m_drawsBorder; }
    void setDrawsBorder(bool draws);
    /// Whether the pointer becomes a text cursor over the field.
    bool hasHoverCursor() const { return m_hasHoverCursor; }
    void setHasHoverCursor(bool has);
    /// Shows bullets instead of the text, which then cannot be copied.
    bool isSecure() const { return m_secure; }
    void setSecure(bool secure);
    /// Whether the drawn corners are rounded.
    bool shouldClipContent() const { return m_shouldClipContent; }
    void setShouldClipContent(bool clip);
    bool shouldShowFocus() const { return m_shouldShowFocus; }
    void setShouldShowFocus(bool show);
    bool isEditable() const { return m_editable; }
    void setEditable(bool editable);
    bool isSelectable() const { return m_selectable; }
    void setSelectable(bool selectable);
    bool isContinuous() const { return m_continuous; }
    void setContinuous(bool continuous) { m_continuous = continuous; }

    void beginEditing();
    void endEditing();
    bool isEditing() const { return m_currentFieldEditor != nullptr; }
    /// The editor over the text, nullptr while the field is not edited.
    ZKFieldEditor *currentFieldEditor() const { return m_currentFieldEditor; }
    /// Whether the field can be edited, or its text selected.
    bool acceptsFirstResponder() const { return isEnabled() && (m_editable || m_selectable); }

    /// Places the field, at least 60 × 24 points large.
    void setFrame(const QRect &frame);
    QSize sizeHint() const override;

    /// All settings of the field, by name; the text only if it is not secret.
    QVariantMap encodeWithCoder() const;
    void initWithCoder(const QVariantMap &archive);

signals:
    void action(lumora::ZKTextField *sender);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool takesDrop(const QMimeData &content) const;
    void configureFieldEditor(Qt::FocusReason reason);
    void styleFieldEditor();
    void placeFieldEditor();
    void passToEditor(QMouseEvent *event);
    void textDidChange();
    void insertNewline();
    void insertTab(bool forward);
    void sendAction();
    /// Takes the focus without beginning to edit.
    void takeFocusQuietly();

    void drawBackgroundWithRect(QPainter &painter, const QRectF &rect) const;
    void drawFrameWithRect(QPainter &painter, const QRectF &rect) const;
    void drawInteriorWithRect(QPainter &painter, const QRectF &rect) const;
    void drawTextWithRect(QPainter &painter, const QRectF &rect, const AttributedString &string) const;
    void drawFocusRing(QPainter &painter, const QRectF &rect) const;
    /// The box of the letters, y downwards, on whole points, so that text and editor draw them at the same place.
    QRect letterRect(const QFont &font) const;

    QString m_string;
    QString m_placeholder;
    /// The bullets that are shown instead of a secret text.
    QString m_bullets;
    TextAttributes m_stringAttributes;
    TextAttributes m_placeholderAttributes;
    SelectionAttributes m_selectedAttributes;
    QColor m_backgroundColor;
    ZKFieldEditor *m_currentFieldEditor = nullptr;
    bool m_drawsBackground = true;
    bool m_drawsBorder = true;
    bool m_hasHoverCursor = true;
    bool m_secure = false;
    bool m_shouldClipContent = true;
    bool m_shouldShowFocus = true;
    bool m_editable = true;
    bool m_selectable = true;
    bool m_continuous = false;
    bool m_passesMouse = false;
    bool m_takesFocusQuietly = false;
};

} // namespace lumora
