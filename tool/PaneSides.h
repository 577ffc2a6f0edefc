// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

namespace lumora
{

class SegmentedControl;

/// The two sides of a tool: the classic one, and what has come since.
enum class ToolSide { Classic, Today };

/// The switch "Classic | Today" in the trailing top corner of a pane, and the side in view. The classic side is
/// everything that the pane contains; Today covers it, and is made when it is first seen. The side lasts as long as the
/// pane, thus while the program runs.
class PaneSides final : public QObject
{
    Q_OBJECT

public:
    /// Makes Today's side as a child of the pane.
    using MakeToday = std::function<QWidget *(QWidget *pane)>;

    /// The pane is owner and parent; its classic side is complete.
    PaneSides(QWidget *pane, MakeToday makeToday);

    ToolSide side() const { return m_side; }
    /// Shows the side, at once or as soon as the pane is seen.
    void show(ToolSide side);
    SegmentedControl *control() const { return m_control; }
    /// Whether the user is operating the switch itself.
    bool isUsed() const { return m_isUsed; }

signals:
    /// The side is in view now.
    void shown(lumora::ToolSide side);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void arrange();
    void apply();
    void makeToday();

    QWidget *m_pane;
    MakeToday m_makeToday;
    SegmentedControl *m_control; ///< owned by the pane
    QWidget *m_today = nullptr;  ///< owned by the pane
    std::vector<QPointer<QWidget>> m_hidden;
    ToolSide m_side = ToolSide::Classic;
    ToolSide m_inView = ToolSide::Classic;
    bool m_isUsed = false;
};

} // namespace lumora
