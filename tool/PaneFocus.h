// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace lumora
{

/// Keeps the focus in a pane. When the focused control is hidden or disabled, the pane's next control gets the focus,
/// or the pane itself if it has none. The first control gets the focus back as soon as it can take it, however many
/// others had it in between, unless the user has moved the focus meanwhile.
class PaneFocus final : public QObject
{
    Q_OBJECT

public:
    /// The pane is owner and parent.
    explicit PaneFocus(QWidget *pane);

    /// Gives the focus to the pane's first control.
    void take();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void focusChanged(QWidget *old, QWidget *now);
    /// Whether the control had to give up the focus.
    bool isLost(const QWidget *control) const;
    /// Gives the focus of a lost control to `now` if that is in the pane, else to the pane's next control.
    void pass(QWidget *old, QWidget *now);
    /// Watches the control that has the window's focus while another window has the keyboard; null for none.
    void rest(QWidget *control);
    void giveBack();
    void forget();
    /// The next control of the pane that can take the focus, or the pane itself.
    QWidget *controlAfter(QWidget *start) const;

    QWidget *m_pane;
    QPointer<QWidget> m_left;    ///< the control that lost the focus by being hidden or disabled
    QPointer<QWidget> m_standIn; ///< the widget that has it instead
    QPointer<QWidget> m_resting; ///< the widget that has it once the window has the keyboard again
};

} // namespace lumora
