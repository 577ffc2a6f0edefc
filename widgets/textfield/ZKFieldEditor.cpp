// SPDX-License-Identifier: MIT
#include "ZKFieldEditor.h"

#include "ZKSecureGlyphGenerator.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QStyleHints>

#include <utility>

namespace lumora
{

ZKFieldEditor::ZKFieldEditor(QWidget *field) : QLineEdit(field)
{
    setFrame(false);
    setAlignment(Qt::AlignTop);
    setDragEnabled(true);
    // The field stands in the chain of focus, its editor only gets the focus from it.
    setFocusPolicy(Qt::ClickFocus);
}

void ZKFieldEditor::setSecure(bool secure)
{
    if (!secure) {
        setEchoMode(Normal);
        return;
    }
    setEchoMode(Password);
    // Styles are free to show the last character for a while, and to draw another character than a bullet.
    setStyleSheet(QStringLiteral("QLineEdit { background: transparent; border: none; lineedit-password-character: %1; "
                                 "lineedit-password-mask-delay: 0; }")
                      .arg(static_cast<int>(ZKSecureGlyphGenerator::bullet)));
}

bool ZKFieldEditor::focusNextPrevChild(bool next)
{
    emit insertTab(next);
    return true;
}

void ZKFieldEditor::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        emit insertNewline();
        return;
    }
    if (echoMode() != Normal && event->matches(QKeySequence::Cut)) {
        // A secret that cannot be copied would only be lost.
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
    // What the field hands on of the first press bears no time.
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
        // The focus comes back.
        return;
    default:
        emit textDidEndEditing();
    }
}

} // namespace lumora
