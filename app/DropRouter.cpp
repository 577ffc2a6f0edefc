// SPDX-License-Identifier: MIT
#include "DropRouter.h"

#include "AppDelegate.h"
#include "app/sidebar/ITSidebar.h"
#include "app/sidebar/ITSidebarItemCell.h"
#include "foundation/ToolFacts.h"
#include "tool/DropView.h"
#include "tool/ToolViewController.h"
#include "tool/services/LocalFiles.h"
#include "widgets/window/INAppStoreWindow.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>

namespace lumora
{

DropRouter::DropRouter(AppDelegate &delegate) : QObject(&delegate), m_delegate(delegate)
{
    delegate.window()->setAcceptDrops(true);
    delegate.window()->installEventFilter(this);
}

void DropRouter::watchTool(std::size_t index)
{
    const QWidget *tool = m_delegate.controller(index)->view();
    if (tool == nullptr)
        return;
    const QList<DropView *> views = tool->findChildren<DropView *>();
    for (DropView *view : views) {
        m_views.insert(view, index);
        view->installEventFilter(this);
    }
}

void DropRouter::watchItem(QWidget *item, std::size_t index)
{
    m_items.insert(item, index);
    item->setAcceptDrops(true);
    item->installEventFilter(this);
}

std::optional<std::size_t> DropRouter::toolFor(const QMimeData &content, std::size_t toolInView, bool inViewTakesFiles)
{
    constexpr auto indexOf = [](ToolIndex tool) { return static_cast<std::size_t>(tool); };
    if (!content.hasUrls())
        return content.hasColor() ? std::optional(indexOf(ToolIndex::Color)) : std::nullopt;
    const QString first = localFiles(content.urls()).value(0);
    const QString extension = QFileInfo(first).suffix().toLower();
    const bool isPackage = extension == QLatin1StringView(factsOf(ToolIndex::Validator).openedExtension);
    if (isPackage)
        return indexOf(ToolIndex::Validator);
    const bool isPicture = extension == QLatin1StringView(factsOf(ToolIndex::Icons).openedExtension);
    if (isPicture && (!inViewTakesFiles || toolInView == indexOf(ToolIndex::Validator)))
        return indexOf(ToolIndex::Icons);
    return inViewTakesFiles ? std::optional(toolInView) : std::nullopt;
}

DropView *DropRouter::dropViewOf(std::size_t index) const
{
    const QWidget *view = m_delegate.controller(index)->view();
    return view == nullptr ? nullptr : view->findChild<DropView *>();
}

std::optional<std::size_t> DropRouter::target(const QObject *watched, const QDropEvent &event) const
{
    const auto item = m_items.constFind(const_cast<QObject *>(watched));
    if (item != m_items.cend())
        return *item;
    const std::size_t inView = m_delegate.toolInView();
    // A tool that takes files on one side only disables its drop view on the other.
    const DropView *view = dropViewOf(inView);
    const bool takesFiles =
        inView != static_cast<std::size_t>(ToolIndex::Color) && view != nullptr && view->isEnabled();
    return toolFor(*event.mimeData(), inView, takesFiles);
}

void DropRouter::setHovered(DropView *view, ITSidebarItemCell *item)
{
    if (m_hovered != nullptr && m_hovered != view)
        m_hovered->forget();
    m_hovered = view;
    if (m_markedItem != nullptr && m_markedItem != item)
        m_markedItem->setDropTarget(false);
    m_markedItem = item;
    if (item != nullptr)
        item->setDropTarget(true);
}

bool DropRouter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::DragLeave)
        setHovered(nullptr, nullptr);
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *drop = static_cast<QDropEvent *>(event);
    const auto own = m_views.constFind(watched);
    const std::optional<std::size_t> tool = target(watched, *drop);
    // A drop view itself accepts drags for its tool, and refuses drags for no tool.
    if (own != m_views.cend() && (!tool || *tool == *own))
        return false;
    DropView *view = tool ? dropViewOf(*tool) : nullptr;
    if (view == nullptr || !view->isEnabled() || (view->isHidden() && !view->takesWhileHidden())) {
        drop->ignore();
        return true;
    }
    if (event->type() != QEvent::Drop) {
        view->judge(drop);
        setHovered(view,
                   *tool == m_delegate.toolInView() ? nullptr : qobject_cast<ITSidebarItemCell *>(m_items.key(*tool)));
        return true;
    }
    setHovered(nullptr, nullptr);
    m_delegate.sideBar()->setSelectedIndex(static_cast<qint32>(*tool));
    view->receive(drop);
    return true;
}

} // namespace lumora
