// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

#include <optional>

class QDropEvent;
class QMimeData;
class QWidget;

namespace lumora
{

class AppDelegate;
class DropView;
class ITSidebarItemCell;

/// Passes anything that is dropped in the window to the right tool: a package to the package check, a picture to the
/// icons if the tool in view takes none, a color to the color tool, and a drop on an item of the sidebar to that item's
/// tool.
class DropRouter final : public QObject
{
    Q_OBJECT

public:
    /// The delegate has built its window and outlives the router.
    explicit DropRouter(AppDelegate &delegate);

    /// Watches a tool's drop view, which would accept every file.
    void watchTool(std::size_t index);
    /// Passes drops on the widget to the tool.
    void watchItem(QWidget *item, std::size_t index);

    /// The tool for a drag while any tool is in view; empty if no tool takes it.
    static std::optional<std::size_t> toolFor(const QMimeData &content, std::size_t toolInView, bool inViewTakesFiles);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The tool that gets the event instead of the watched object.
    std::optional<std::size_t> target(const QObject *watched, const QDropEvent &event) const;
    DropView *dropViewOf(std::size_t index) const;
    /// Highlights the drop view that gets the drag, and the item of its tool if another tool is in view.
    void setHovered(DropView *view, ITSidebarItemCell *item);

    AppDelegate &m_delegate;
    QHash<QObject *, std::size_t> m_items; ///< of the sidebar
    QHash<QObject *, std::size_t> m_views; ///< the tools' drop views
    DropView *m_hovered = nullptr;         ///< highlighted for a drag over another widget
    QPointer<ITSidebarItemCell> m_markedItem;
};

} // namespace lumora
