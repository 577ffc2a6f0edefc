// SPDX-License-Identifier: MIT
#include "ToolViewController.h"

#include "JobResultView.h"
#include "PaneFocus.h"
#include "tool/style/PopoverStyle.h"
#include "tool/style/ShellMetrics.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/Palette.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>

#include <utility>

namespace lumora
{

ToolViewController::ToolViewController(const Services &services, QObject *parent)
    : QObject(parent), m_services(services), m_view(new QWidget), m_focus(new PaneFocus(m_view))
{
    m_view->installEventFilter(this);
}

ToolViewController::~ToolViewController()
{
    delete m_view;
}

QWidget *ToolViewController::window() const
{
    return m_window.isNull() ? m_view->window() : m_window.get();
}

void ToolViewController::takeFocus()
{
    m_focus->take();
}

void ToolViewController::addToday(PaneSides::MakeToday makeToday)
{
    m_sides = new PaneSides(m_view, std::move(makeToday));
    // The control that had the keyboard is hidden now; the switch keeps it if it was used.
    connect(m_sides, &PaneSides::shown, this, [this] {
        const QWidget *focused = QApplication::focusWidget();
        if (focused != nullptr && m_view->isAncestorOf(focused) && !m_sides->isUsed())
            takeFocus();
    });
}

void ToolViewController::setUpResult(JobResultView *view, const QColor &normal, const QColor &hover)
{
    view->setColors(normal, hover);
    connect(view, &JobResultView::folderWanted, this,
            [this](const QString &folder) { services().fileManager.show(folder); });
    connect(view, &JobResultView::pathWanted, this,
            [this](const QString &folder) { services().clipboard.setText(folder); });
}

void ToolViewController::createPopup()
{
    m_popupContentView = new AlertContentView;
    m_popupView = std::make_unique<SFBPopover>(m_popupContentView);
    stylePopover(*m_popupView);
    m_popupContentView->setDelegate(this);
    // The popover is certain to stay hidden only when all receivers of its signal have run.
    connect(m_popupView.get(), &SFBPopover::closed, this, &ToolViewController::displayWaiting, Qt::QueuedConnection);
}

void ToolViewController::showPopupWithTitle(const QString &title, const QString &message, QWidget *fromView,
                                            bool isError)
{
    m_popupContentView->setTitle(title, message);
    m_popupView->setBorderColor(isError ? palette::errorLight : palette::successLight);
    m_popupContentView->setLightColor(isError ? palette::errorLight : palette::successLight,
                                      isError ? palette::errorDark : palette::successDark);
    const Message asked{title, message, fromView, isError};
    if (m_popupView->isVisible()) {
        if (asked != m_shownMessage)
            m_waitingMessage = asked;
        m_popupView->closePopover();
        return;
    }
    if ((m_view->isVisible() && !isBlocked()) || fromView == nullptr)
        display(asked);
    else {
        m_waitingMessage = asked;
        jobEnded();
    }
}

void ToolViewController::jobEnded()
{
    if (!m_view->isVisible())
        emit attentionWanted();
}

/// A dialog is open, and a message would take the keyboard from it.
bool ToolViewController::isBlocked() const
{
    const QWidget *dialog = QApplication::activeModalWidget();
    return dialog != nullptr && (dialog->windowModality() == Qt::ApplicationModal ||
                                 (dialog->parentWidget() != nullptr && dialog->parentWidget()->window() == window()));
}

void ToolViewController::display(const Message &message)
{
    m_shownMessage = message;
    m_waitingMessage.reset();
    // What was shown or hidden just before may yet move the control.
    if (m_view->layout() != nullptr)
        m_view->layout()->activate();
    if (message.control.isNull())
        m_popupView->displayPopoverInWindow(window(), QPointF(metrics::toolLeft, -metrics::popupGap));
    else
        m_popupView->displayPopover({message.control, Qt::BottomEdge, metrics::popupGap, {}});
}

void ToolViewController::displayWaiting()
{
    if (m_waitingMessage.has_value() && m_view->isVisible() && !m_popupView->isVisible() && !isBlocked())
        display(*m_waitingMessage);
}

void ToolViewController::popupCloseButtonPressed()
{
    if (m_popupView->isVisible())
        m_popupView->closePopover();
}

bool ToolViewController::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && m_popupView && !event->spontaneous()) {
        if (event->type() == QEvent::Hide) {
            m_popupView->closePopover();
            emit leftView();
        } else if (event->type() == QEvent::Show || event->type() == QEvent::WindowUnblocked) {
            // Queued, since the view gets its place in the window, and a dialog closes, only after this event.
            QMetaObject::invokeMethod(this, &ToolViewController::displayWaiting, Qt::QueuedConnection);
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace lumora
