// SPDX-License-Identifier: MIT
#include "ZKFieldEditor.h"

#include "ZKSecureGlyphGenerator.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QStyleHints>

#include <utility>

namespace lumora
{

ZKFieldEditor::ZKFieldEditor(QWidget *field) : QLineEdit(field)
{
    setFrame(false);
    setAlignment(Qt::AlignTop);
    setDragEnabled(true);
    // The field is in the tab order; its editor only gets the focus from the field.
    setFocusPolicy(Qt::ClickFocus);
}

void ZKFieldEditor::setSecure(bool secure)
{
    if (!secure) {
        setEchoMode(Normal);
        return;
    }
    setEchoMode(Password);
    // A style may show the last character for a while, and draw another character than a bullet.
    setStyleSheet(QStringLiteral("QLineEdit { background: transparent; border: none; lineedit-password-character: %1; "
                                 "lineedit-password-mask-delay: 0; }")
                      .arg(static_cast<int>(ZKSecureGlyphGenerator::bullet)));
}

bool ZKFieldEditor::focusNextPrevChild(bool next)
{
    emit insertTab(next);
    return true;
}

void ZKFieldEditor::dragEnterEvent(QDragEnterEvent *event)
{
    // A drag of files also offers their names as text. The widgets below handle files.
    if (event->mimeData()->hasUrls())
        event->ignore();
    else
        QLineEdit::dragEnterEvent(event);
}

void ZKFieldEditor::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        emit insertNewline();
        return;
    }
    if (echoMode() != Normal && event->matches(QKeySequence::Cut)) {
        // A secret cannot be copied, so cutting it would only lose it.
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void ZKFieldEditor::beginWithPress(const QMouseEvent &press)
{
    m_firstPress = press.globalPosition();
    m_firstPressTime = press.button() == Qt::LeftButton ? press.timestamp() : 0;
}

void ZKFieldEditor::mousePressEvent(QMouseEvent *event)
{
    // The first press, which the field passes on, has no time stamp.
    const quint64 first = event->timestamp() == 0 ? 0 : std::exchange(m_firstPressTime, 0);
    const QStyleHints *hints = QGuiApplication::styleHints();
    const QPointF travel = event->globalPosition() - m_firstPress;
    const bool doubleClick = first != 0 && event->button() == Qt::LeftButton &&
                             event->timestamp() - first <= static_cast<quint64>(hints->mouseDoubleClickInterval()) &&
                             travel.manhattanLength() <= hints->mouseDoubleClickDistance();
    if (doubleClick)
        mouseDoubleClickEvent(event);
    else
        QLineEdit::mousePressEvent(event);
}

void ZKFieldEditor::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    switch (event->reason()) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        // The focus returns, for example from a menu.
        return;
    default:
        emit textDidEndEditing();
    }
}

} // namespace lumora
