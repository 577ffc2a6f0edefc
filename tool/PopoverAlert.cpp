// SPDX-License-Identifier: MIT
#include "PopoverAlert.h"

#include "PopoverAlertView.h"
#include "tool/style/PopoverStyle.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/Palette.h"

#include <QEvent>

#include <vector>

namespace lumora
{

namespace
{

/// One alert of the whole process is on screen, and one queue holds the alerts that it replaced. Main thread only.
struct Alerts
{
    std::vector<std::shared_ptr<PopoverAlert>> queue;
    std::shared_ptr<PopoverAlert> current;
    SFBPopover *currentPopover = nullptr;
};

Alerts &alerts()
{
    static Alerts all;
    return all;
}

} // namespace

std::shared_ptr<PopoverAlert> PopoverAlert::create()
{
    return std::shared_ptr<PopoverAlert>(new PopoverAlert);
}

PopoverAlert::~PopoverAlert()
{
    retirePopover();
}

void PopoverAlert::runAsPopoverForView(QWidget *view, CompletionBlock withCompletionBlock)
{
    runAsPopoverForView(view, RectEdge::MaxY, std::move(withCompletionBlock));
}

void PopoverAlert::runAsPopoverForView(QWidget *view, RectEdge, CompletionBlock withCompletionBlock)
{
    m_completionBlock = std::move(withCompletionBlock);
    if (m_targetView)
        m_targetView->removeEventFilter(this);
    m_targetView = view;
    view->installEventFilter(this);
    retirePopover();
    m_view = new PopoverAlertView(*this);
    for (IconButton *button : m_view->buttons())
        connect(button, &IconButton::clicked, this, [this, button] { stopSynchronousPopoverAlert(button); });

    m_parentPopover = std::make_unique<SFBPopover>(m_view);
    stylePopover(*m_parentPopover);
    // A question stays until it is answered.
    m_parentPopover->setClosesWhenApplicationBecomesInactive(false);
    m_parentPopover->setClosesWhenPopoverResignsKey(false);
    m_parentPopover->setBorderColor(palette::chromeText);

    Alerts &all = alerts();
    if (all.current != nullptr && all.current.get() != this) {
        all.queue.push_back(all.current);
        all.current->retirePopover();
    }
    showOnView();
    all.currentPopover = m_parentPopover.get();
    all.current = shared_from_this();
}

void PopoverAlert::showOnView()
{
    if (m_parentPopover != nullptr && m_targetView && m_targetView->isVisible())
        m_parentPopover->displayPopover({m_targetView, Qt::TopEdge, 0, {}});
}

bool PopoverAlert::eventFilter(QObject *watched, QEvent *event)
{
    // An alert of a tool that is not in view waits until the tool is shown.
    if (watched == m_targetView && m_parentPopover != nullptr && !event->spontaneous()) {
        if (event->type() == QEvent::Hide)
            m_parentPopover->closePopover();
        else if (event->type() == QEvent::Show)
            QMetaObject::invokeMethod(this, &PopoverAlert::showOnView, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void PopoverAlert::stopSynchronousPopoverAlert(const IconButton *button)
{
    // The completion may release the last other reference to this alert, run it again, or run another one.
    const std::shared_ptr<PopoverAlert> self = shared_from_this();
    const CompletionBlock completion = m_completionBlock;
    const SFBPopover *const answered = m_parentPopover.get();
    const int response = responseForButton(static_cast<int>(m_view->buttons().indexOf(button)));
    if (completion)
        completion(response);
    if (m_parentPopover.get() == answered)
        retirePopover();
    Alerts &all = alerts();
    // An alert that was replaced by one that its own completion ran is already answered.
    std::erase(all.queue, self);
    if (all.currentPopover != answered)
        return;
    all.currentPopover = nullptr;
    all.current.reset();
    checkForPreviouslyShownAlerts();
}

void PopoverAlert::retirePopover()
{
    SFBPopover *popover = m_parentPopover.release();
    if (popover == nullptr)
        return;
    // Deleted later, since one of its buttons may be delivering the click that closes it.
    if (!popover->isVisible()) {
        popover->deleteLater();
        return;
    }
    connect(popover, &SFBPopover::closed, popover, &QObject::deleteLater);
    popover->closePopover();
}

QList<IconButton *> PopoverAlert::buttons() const
{
    return m_view.isNull() ? QList<IconButton *>() : m_view->buttons();
}

int PopoverAlert::responseForButton(int index)
{
    return index >= firstButtonReturn && index <= thirdButtonReturn ? index : index + firstButtonReturn;
}

void PopoverAlert::checkForPreviouslyShownAlerts()
{
    Alerts &all = alerts();
    while (!all.queue.empty()) {
        const std::shared_ptr<PopoverAlert> last = all.queue.back();
        all.queue.pop_back();
        // An alert cannot be answered once its view is deleted with its window.
        if (last->m_targetView.isNull())
            continue;
        last->runAsPopoverForView(last->m_targetView, last->m_completionBlock);
        return;
    }
}

PopoverAlert *PopoverAlert::currentAlert()
{
    return alerts().current.get();
}

int PopoverAlert::queueLength()
{
    return static_cast<int>(alerts().queue.size());
}

} // namespace lumora
