// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace lumora
{

/// Keeps the keyboard in a pane. Where the focused control is hidden or disabled, the next one of the pane takes the
/// focus, not whatever comes next in the window; without one, the pane itself. The control gets the focus back when it
/// can take it again, unless it has been moved meanwhile.
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
    void giveBack();
    /// The next control behind this one, in the order of Tab, that can take the focus; the pane where there is none.
    QWidget *controlAfter(QWidget *start) const;

    QWidget *m_pane;
    QPointer<QWidget> m_left;    ///< lost the focus by being hidden or disabled
    QPointer<QWidget> m_standIn; ///< has it instead
};

} // namespace lumora
