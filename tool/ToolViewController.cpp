// SPDX-License-Identifier: MIT
#include "ToolViewController.h"

#include "PopoverStyle.h"
#include "PopupAnchor.h"
#include "PopupPlacement.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/Palette.h"

namespace lumora
{

ToolViewController::ToolViewController(const Services &services, QObject *parent)
    : QObject(parent), m_services(services), m_view(new QWidget)
{
}

ToolViewController::~ToolViewController()
{
    delete m_view;
}

QWidget *ToolViewController::window() const
{
    return m_window.isNull() ? m_view->window() : m_window.get();
}

void ToolViewController::createPopup()
{
    m_popupContentView = new AlertContentView;
    m_popupView = std::make_unique<SFBPopover>(m_popupContentView);
    stylePopover(*m_popupView);
    m_popupContentView->setDelegate(this);
}

void ToolViewController::showPopupWithTitle(const QString &title, const QString &message, QWidget *fromView,
                                            bool isError)
{
    m_popupContentView->setTitle(title, message);
    m_popupView->setBorderColor(isError ? palette::errorLight : palette::successLight);
    m_popupContentView->setLightColor(isError ? palette::errorLight : palette::successLight,
                                      isError ? palette::errorDark : palette::successDark);
    if (m_popupView->isVisible()) {
        m_popupView->closePopover();
        return;
    }
    const QSizeF size = fromView == nullptr ? QSizeF(0, 0) : QSizeF(fromView->size());
    displayOnScreen(*m_popupView, window(), popupAnchor(popupAnchorOrigin(fromView), size));
}

void ToolViewController::popupCloseButtonPressed()
{
    if (m_popupView->isVisible())
        m_popupView->closePopover();
}

} // namespace lumora
