// SPDX-License-Identifier: MIT
#include "PopoverAlert.h"

#include "PopoverAlertView.h"
#include "QuestionPopover.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/popover/SFBPopover.h"

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
    retirePopover(std::move(m_parentPopover));
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
    retirePopover(std::move(m_parentPopover));
    m_view = new PopoverAlertView(*this);
    for (IconButton *button : m_view->buttons())
        connect(button, &IconButton::clicked, this, [this, button] { stopSynchronousPopoverAlert(button); });

    m_parentPopover = makeQuestionPopover(m_view);

    Alerts &all = alerts();
    if (all.current != nullptr && all.current.get() != this) {
        all.queue.push_back(all.current);
        retirePopover(std::move(all.current->m_parentPopover));
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
        retirePopover(std::move(m_parentPopover));
    Alerts &all = alerts();
    // An alert that was replaced by one that its own completion ran is already answered.
    std::erase(all.queue, self);
    if (all.currentPopover != answered)
        return;
    all.currentPopover = nullptr;
    all.current.reset();
    checkForPreviouslyShownAlerts();
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
