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

/// Whether a popover needs the keyboard once it is shown: if it has a text field, or if it has a control and no text
/// field of the parent window has the focus. Otherwise the keyboard stays where it is.
bool wantsKeyboard(const QWidget *content, const QWidget *parentWindow);

/// Watches whether a shown popover is the key window: the window in which the user works. It is key as soon as it is
/// shown, with or without the keyboard, until the user presses or activates another window. If the system cannot give
/// the popover the keyboard, it gets the parent window's keys as long as it is key.
class PopoverKeyStatus : public QObject
{
    Q_OBJECT

public:
    explicit PopoverKeyStatus(SFBPopoverWindow *popover);

    bool isKeyWindow() const { return m_isKey; }
    /// The popover was shown above the parent, which may be null.
    void begin(QWidget *parentWindow, bool wantsKeyboard);
    /// The popover is about to be hidden: the keyboard returns to the parent if the popover had it.
    void end();

signals:
    void resignedKey();
    /// Escape was pressed in the parent window while the popover is key.
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
    /// Whether the parent's keys go to the popover.
    bool m_borrowsKeys = false;
};

} // namespace lumora
