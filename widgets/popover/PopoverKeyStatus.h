// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QKeyEvent;
class QWidget;
class QWindow;

namespace lumora
{

class SFBPopoverWindow;

/// Whether a popover needs the keyboard once it is shown: it has something to type into, or something to operate while
/// nobody is typing in the parent window. Otherwise typing goes on where it was.
bool wantsKeyboard(const QWidget *content, const QWidget *parentWindow);

/// Watches whether a shown popover is the key window: the one the user works in. It is from its showing on, whether or
/// not it has the keyboard, until the user presses or activates another window. Where the system cannot give the
/// popover the keyboard, the parent window's keys are handed on to it as long as it is key.
class PopoverKeyStatus : public QObject
{
    Q_OBJECT

public:
    explicit PopoverKeyStatus(SFBPopoverWindow *popover);

    bool isKeyWindow() const { return m_isKey; }
    /// The popover was shown above the parent, which may be null.
    void begin(QWidget *parentWindow, bool wantsKeyboard);
    /// The popover is about to go: typing returns to the parent if the popover had it.
    void end();

signals:
    void resignedKey();
    /// Escape was pressed in the parent window, which the user sees as pressed in the popover.
    void canceled();

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    void focusWindowChanged(QWindow *window);
    void applicationStateChanged(Qt::ApplicationState state);
    void pressedIn(QWindow *window);
    bool takesKey(QObject *receiver, QKeyEvent *event);
    bool handsOnToFocus(QObject *receiver, QEvent *event);
    bool belongsToPopover(QWindow *window) const;
    bool belongsToParent(const QObject *receiver) const;
    void become();
    void resign();

    SFBPopoverWindow *m_popover;
    QPointer<QWidget> m_parentWindow;
    bool m_isKey = false;
    bool m_wantsKeyboard = false;
    bool m_hadFocus = false;
    /// The parent's keys go to the popover.
    bool m_borrowsKeys = false;
};

} // namespace lumora
