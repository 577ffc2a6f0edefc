// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>

#include <optional>

class QDropEvent;
class QMimeData;
class QWidget;

namespace lumora
{

class AppDelegate;
class DropView;

/// Takes what is dropped anywhere in the window to the tool that it is meant for: a package to the package check, a
/// picture to the icons where the tool in view takes none, a color to the color tool; what is dropped on an item of the
/// sidebar, to that item's tool.
class DropRouter final : public QObject
{
    Q_OBJECT

public:
    /// The delegate has built its window and outlives the router.
    explicit DropRouter(AppDelegate &delegate);

    /// Watches a tool's drop view, which would take every file.
    void watchTool(std::size_t index);
    /// Takes drops on the widget to the tool.
    void watchItem(QWidget *item, std::size_t index);

    /// The tool that a drag is meant for while another, or the same, is in view; none for what no tool takes.
    static std::optional<std::size_t> toolFor(const QMimeData &content, std::size_t toolInView, bool inViewTakesFiles);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The tool that the event is to go to instead of the watched object.
    std::optional<std::size_t> target(const QObject *watched, const QDropEvent &event) const;
    DropView *dropViewOf(std::size_t index) const;
    void setHovered(DropView *view);

    AppDelegate &m_delegate;
    QHash<QObject *, std::size_t> m_items; ///< of the sidebar
    QHash<QObject *, std::size_t> m_views; ///< the tools' drop views
    DropView *m_hovered = nullptr;         ///< lit for a drag that is elsewhere
};

} // namespace lumora
