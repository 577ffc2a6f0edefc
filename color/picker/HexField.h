// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

#include <QLineEdit>

namespace lumora
{

struct TypingOutcome;

/// A field for a color's digits, by the typing rule. A pasted text that is a color in any form becomes its digits, and
/// every change by the user can be undone.
class HexField : public QLineEdit
{
    Q_OBJECT

public:
    explicit HexField(QWidget *parent = nullptr);

    /// Sets the text from the program, which does not count as typing and ends what can be undone.
    void showText(const QString &text);
    /// Takes the text if it is a color, else types it at the cursor.
    void takeText(const QString &text);
    /// The typing rule for text that was not typed key by key. It replaces a text that breaks the rule; the cursor
    /// stays.
    void applyTypingRule();

signals:
    /// The user pastes the clipboard's content, by key or from the menu. The owner decides what to do with it.
    void pasteWanted();
    /// The user or assistive technology has changed the text.
    void typed();
    /// The typed digits are complete; they may not be hexadecimal.
    void digitsCompleted(const QString &digits);
    /// A text with this color was pasted. It is opaque if the text names no opacity.
    void colorPasted(const lumora::RgbaColor &color);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    /// Replaces the whole text, as one step that can be undone and does not count as typing.
    void replaceText(const QString &text);
    void showCorrected(const TypingOutcome &outcome);
    /// The text with its selection replaced by the typed text.
    QString textAfterTyping(const QString &typed) const;
    bool filterTyping(const QKeyEvent &event);

    bool m_setsText = false;
};

} // namespace lumora
