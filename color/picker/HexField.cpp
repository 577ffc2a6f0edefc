// SPDX-License-Identifier: MIT
#include "HexField.h"

#include "color/PastedColor.h"
#include "color/TypingRule.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace lumora
{

namespace
{

/// The menu's own paste action, found by its shortcut; null if there is none.
QAction *pasteAction(const QMenu &menu)
{
    const QString keys = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
    for (QAction *action : menu.actions()) {
        if (action->text().section(u'\t', 1) == keys)
            return action;
    }
    return nullptr;
}

} // namespace

HexField::HexField(QWidget *parent) : QLineEdit(parent)
{
    // Not only textEdited: text from assistive technology counts as typed, too.
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!m_setsText)
            emit typed();
    });
}

void HexField::showText(const QString &text)
{
    const bool before = std::exchange(m_setsText, true);
    setText(text);
    m_setsText = before;
}

void HexField::replaceText(const QString &text)
{
    const bool before = std::exchange(m_setsText, true);
    selectAll();
    insert(text);
    m_setsText = before;
}

void HexField::takeText(const QString &text)
{
    if (const auto pasted = pastedColor(text)) {
        replaceText(pasted->digits);
        emit colorPasted(pasted->color);
        return;
    }
    const QString typed = text.trimmed();
    const TypingOutcome outcome = outcomeOfTyping(textAfterTyping(typed));
    if (outcome.correctedText)
        showCorrected(outcome);
    else
        insert(typed);
}

void HexField::applyTypingRule()
{
    const TypingOutcome outcome = outcomeOfTyping(text());
    if (outcome.correctedText) {
        const int cursor = cursorPosition();
        showText(*outcome.correctedText);
        setModified(true);
        setCursorPosition(std::min(cursor, static_cast<int>(outcome.correctedText->size())));
    }
    if (outcome.colorText)
        emit digitsCompleted(*outcome.colorText);
}

void HexField::showCorrected(const TypingOutcome &outcome)
{
    if (*outcome.correctedText != text())
        replaceText(*outcome.correctedText);
    if (outcome.colorText)
        emit digitsCompleted(*outcome.colorText);
}

QString HexField::textAfterTyping(const QString &typed) const
{
    const bool selected = hasSelectedText();
    return text().replace(selected ? selectionStart() : cursorPosition(), selected ? selectionLength() : 0, typed);
}

bool HexField::filterTyping(const QKeyEvent &event)
{
    const QString typed = event.text();
    const bool isCharacter = typed.size() == 1 && typed.front().isPrint() &&
                             (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    if (!isCharacter)
        return false;
    // An excess character never gets into the field: removing it afterwards would clear the undo history.
    const TypingOutcome outcome = outcomeOfTyping(textAfterTyping(typed));
    if (!outcome.correctedText)
        return false;
    const int cursor = hasSelectedText() ? selectionStart() : cursorPosition();
    showCorrected(outcome);
    setCursorPosition(std::min(cursor + 1, static_cast<int>(outcome.correctedText->size())));
    return true;
}

void HexField::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (QAction *paste = pasteAction(*menu)) {
        paste->disconnect(this);
        // Not only texts: a copied color can be pasted, too.
        paste->setEnabled(!isReadOnly());
        connect(paste, &QAction::triggered, this, &HexField::pasteWanted);
    }
    menu->popup(event->globalPos());
}

void HexField::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Paste))
        emit pasteWanted();
    else if (!filterTyping(*event))
        QLineEdit::keyPressEvent(event);
}

void HexField::mouseReleaseEvent(QMouseEvent *event)
{
    const QClipboard *clipboard = QGuiApplication::clipboard();
    if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    deselect();
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    takeText(clipboard->text(QClipboard::Selection));
}

} // namespace lumora
