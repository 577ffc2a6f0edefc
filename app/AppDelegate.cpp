// SPDX-License-Identifier: MIT
#include "AppDelegate.h"

#include "AboutPopupContentView.h"
#include "DropRouter.h"
#include "HeaderView.h"
#include "PopupContentView.h"
#include "ToolHandoffs.h"
#include "ToolTable.h"
#include "app/sidebar/ITSidebar.h"
#include "app/sidebar/ITSidebarItemCell.h"
#include "app/sidebar/SidebarMatrix.h"
#include "foundation/Version.h"
#include "tool/PopoverAlert.h"
#include "tool/ToolViewController.h"
#include "tool/style/ColorBand.h"
#include "tool/style/PopoverStyle.h"
#include "tool/style/ShellMetrics.h"
#include "ui_MainWindow.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"
#include "widgets/window/INAppStoreWindow.h"

#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The strip centers a sidebar item's 62 points; the sidebar itself moves 10 points to the right.
constexpr int sidebarFrameX = -11;
constexpr qreal trafficLightsTopMargin = 5;
/// The left one of the two header buttons.
constexpr qreal fullScreenButtonRightMargin = 130;

} // namespace

AppDelegate::AppDelegate(const Services &services, QObject *parent) : QObject(parent), m_services(services) {}

AppDelegate::~AppDelegate()
{
    if (m_window == nullptr)
        return;
    m_window->removeEventFilter(this);
    m_window->setDelegate(nullptr);
}

void AppDelegate::applicationDidFinishLaunching()
{
    setUpWindow();
    setUpHeader();
    m_controllers.resize(toolTable().size());
    m_dropRouter = new DropRouter(*this);
    setUpSidebar();
    m_currentController = controller(0);
    m_ui->contentView->layout()->addWidget(m_currentController->view());
    m_sideBar->setSelectedIndex(0);
    m_window->installEventFilter(this);
}

bool AppDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window.get() && event->type() == QEvent::Paint) {
        m_window->removeEventFilter(this);
        QTimer::singleShot(0, this, &AppDelegate::makeNext);
    }
    return QObject::eventFilter(watched, event);
}

void AppDelegate::makeNext()
{
    const auto missing = std::find(m_controllers.cbegin(), m_controllers.cend(), nullptr);
    if (missing != m_controllers.cend())
        controller(static_cast<std::size_t>(missing - m_controllers.cbegin()));
    else if (m_popupView == nullptr)
        popupView();
    else
        aboutPopupView();
    if (!isComplete())
        QTimer::singleShot(0, this, &AppDelegate::makeNext);
}

bool AppDelegate::isComplete() const
{
    return m_popupView != nullptr && m_aboutPopupView != nullptr &&
           std::find(m_controllers.cbegin(), m_controllers.cend(), nullptr) == m_controllers.cend();
}

void AppDelegate::setUpWindow()
{
    m_window = std::make_unique<INAppStoreWindow>();
    m_window->setDelegate(this);
    m_window->setTitle(QApplication::applicationDisplayName());
    m_window->setTitleBarHeight(metrics::titleBarHeight);
    m_window->setTrafficLightButtonsLeftMargin(metrics::sidebarWidth);
    m_window->setTrafficLightButtonsTopMargin(trafficLightsTopMargin);
    m_window->setCenterTrafficLightButtons(true);
    m_window->setFullScreenButtonRightMargin(fullScreenButtonRightMargin);
    m_window->setShowsTitle(false);
    m_window->setShowsBaselineSeparator(false);
    m_window->setBackgroundColor(palette::window);

    auto *content = new QWidget;
    m_ui = std::make_unique<Ui::MainWindow>();
    m_ui->setupUi(content);
    m_window->setContentView(content);
    // The window's frame is the same in every language: the sidebar is at the left. Its contents follow the direction
    // of reading.
    m_window->setLayoutDirection(Qt::LeftToRight);
    m_ui->contentView->setLayoutDirection(QApplication::layoutDirection());
    const qreal standardHeight =
        metrics::windowHeight - metrics::titleBarHeight + INAppStoreWindow::minimumTitleBarHeight();
    m_window->setMinSize(QSizeF(metrics::windowWidth, standardHeight));
    m_window->resize(metrics::windowWidth, metrics::windowHeight);
}

void AppDelegate::setUpHeader()
{
    m_header = new HeaderView;
    m_window->setTitleBarView(m_header);
    m_ui->leftBorderView->setBackgroundColor(palette::icons);
    connect(m_header->infoButton(), &ImageButton::clicked, this, [this] { infoButtonClicked(m_header->infoButton()); });
    connect(m_header->iconButton(), &ImageButton::clicked, this, [this] { iconButtonClicked(m_header->iconButton()); });
}

void AppDelegate::setUpSidebar()
{
    m_sideBar = new ITSidebar;
    m_sideBar->setAccessibleName(qtTrId("ACCESSIBLE_SIDEBAR"));
    m_ui->sideBarScrollView->setDocumentView(m_sideBar);
    m_sideBar->setFrame(QRect(sidebarFrameX, 0, 0, 0));
    m_ui->sideBarScrollView->setDocumentOrigin(m_sideBar->pos());
    m_sideBar->setAllowsEmptySelection(false);
    std::size_t index = 0;
    for (const Tool &tool : toolTable()) {
        const NamedImage image(QString::fromLatin1(tool.sidebarImage));
        ITSidebarItemCell *cell =
            m_sideBar->addItemWithImage(image, image, this, [this](ITSidebarItemCell *) { sideBarItemClicked(); });
        cell->setAccessibleName(qtTrId(tool.helpTitleKey));
        cell->setToolTip(qtTrId(tool.helpTitleKey));
        m_dropRouter->watchItem(cell, index++);
    }
}

ToolViewController *AppDelegate::controller(std::size_t index)
{
    std::unique_ptr<ToolViewController> &controller = m_controllers.at(index);
    if (controller == nullptr) {
        controller = toolTable()[index].makeController(m_services);
        controller->setWindow(m_window.get());
        connectHandoffs(*this, *controller);
        if (PaneSides *sides = controller->sides()) {
            sides->show(m_firstSide);
            // Each side may take other things.
            connect(sides, &PaneSides::shown, this, &AppDelegate::toolChanged);
            connect(sides, &PaneSides::shown, this, &AppDelegate::tellHelp);
            // The side of today is made when it is shown first.
            connect(sides, &PaneSides::shown, m_dropRouter, [this, index] { m_dropRouter->watchTool(index); });
        }
        m_dropRouter->watchTool(index);
        connect(controller.get(), &ToolViewController::attentionWanted, this,
                [this, index] { m_sideBar->matrix()->cells().at(static_cast<qsizetype>(index))->setBadge(true); });
    }
    return controller.get();
}

std::unique_ptr<SFBPopover> AppDelegate::makePopover(QWidget *content) const
{
    auto popover = std::make_unique<SFBPopover>(content);
    stylePopover(*popover);
    popover->setBorderColor(palette::chromeText);
    return popover;
}

SFBPopover *AppDelegate::popupView()
{
    if (m_popupView == nullptr) {
        m_popupContentView = new PopupContentView(m_services.urlOpener);
        m_popupView = makePopover(m_popupContentView);
        tellHelp();
    }
    return m_popupView.get();
}

PopupContentView *AppDelegate::popupContentView()
{
    popupView();
    return m_popupContentView;
}

SFBPopover *AppDelegate::aboutPopupView()
{
    if (m_aboutPopupView == nullptr) {
        m_aboutPopupContentView = new AboutPopupContentView(m_services.urlOpener);
        m_aboutPopupView = makePopover(m_aboutPopupContentView);
    }
    return m_aboutPopupView.get();
}

AboutPopupContentView *AppDelegate::aboutPopupContentView()
{
    aboutPopupView();
    return m_aboutPopupContentView;
}

QWidget *AppDelegate::contentView() const
{
    return m_ui->contentView;
}

ColorBand *AppDelegate::leftBorderView() const
{
    return m_ui->leftBorderView;
}

StyledText AppDelegate::createAttributedStringForHeaderTitle(const QString &title)
{
    StyledText attributed(title);
    attributed.setFontOfFirst(qtTrId("APP_DEFAULT"), latoBold(20));
    attributed.setFontOfFirst(u"|"_s, latoRegular(20));
    return attributed;
}

void AppDelegate::sideBarItemClicked()
{
    updateViewForIndex();
}

void AppDelegate::updateViewForIndex()
{
    const qint32 index = m_sideBar->selectedIndex();
    // The escape key clears the sidebar's selection; the current tool then stays in view.
    if (index < 0)
        return;
    m_toolInView = static_cast<std::size_t>(index);
    const Tool &tool = toolTable()[m_toolInView];
    m_currentController = controller(m_toolInView);

    QLayout *layout = m_ui->contentView->layout();
    QWidget *previous = layout->itemAt(0)->widget();
    QWidget *next = m_currentController->view();
    if (previous != next) {
        // The window's own: another program may have the keyboard, as when files are dragged from it.
        const QWidget *focused = m_window->focusWidget();
        const bool hadFocus = focused != nullptr && (focused == previous || previous->isAncestorOf(focused));
        layout->removeWidget(previous);
        previous->hide();
        previous->setParent(nullptr);
        layout->addWidget(next);
        next->show();
        if (hadFocus)
            m_currentController->takeFocus();
    }

    m_header->setTitle(createAttributedStringForHeaderTitle(qtTrId("APP_DEFAULT") + qtTrId(tool.headerKey)));
    m_sideBar->setBackgroundColor(platformColor(tool.color));
    m_header->curBackgroundColor()->setBackgroundColor(platformColor(tool.color));
    m_header->topBorderView()->setBackgroundColor(platformColor(tool.borderColor));
    m_ui->leftBorderView->setBackgroundColor(platformColor(tool.borderColor));

    for (SFBPopover *popup : {m_popupView.get(), m_aboutPopupView.get()}) {
        if (popup != nullptr && popup->isVisible())
            popup->closePopover();
    }
    tellHelp();
    emit toolChanged();
}

void AppDelegate::tellHelp()
{
    if (m_popupContentView == nullptr)
        return;
    const Tool &tool = toolTable()[m_toolInView];
    m_popupContentView->setTitle(qtTrId(tool.helpTitleKey));
    const PaneSides *sides = controller(m_toolInView)->sides();
    const bool isToday = sides != nullptr && sides->side() == ToolSide::Today;
    m_popupContentView->setText(qtTrId(isToday ? tool.todayHelpTextKey : tool.helpTextKey));
    m_popupContentView->setIcon(NamedImage(QString::fromLatin1(tool.helpIcon)));
    m_popupContentView->setColor(platformColor(tool.color));
}

void AppDelegate::showTool(const QString &name)
{
    for (std::size_t index = 0; index < toolTable().size(); ++index) {
        if (name == QLatin1StringView(toolTable()[index].name))
            m_sideBar->setSelectedIndex(static_cast<qint32>(index));
    }
}

void AppDelegate::showSide(ToolSide side)
{
    m_firstSide = side;
    for (const std::unique_ptr<ToolViewController> &controller : m_controllers) {
        if (controller != nullptr && controller->sides() != nullptr)
            controller->sides()->show(side);
    }
}

void AppDelegate::infoButtonClicked(QWidget *sender)
{
    togglePopup(popupView(), m_aboutPopupView.get(), sender);
}

void AppDelegate::iconButtonClicked(QWidget *sender)
{
    togglePopup(aboutPopupView(), m_popupView.get(), sender);
}

void AppDelegate::togglePopup(SFBPopover *popup, SFBPopover *other, QWidget *sender)
{
    if (other != nullptr && other->isVisible())
        other->closePopover();
    if (popup->isVisible()) {
        popup->closePopover();
        return;
    }
    if (sender == nullptr) {
        popup->displayPopoverInWindow(m_window.get(),
                                      headerPopupAnchor({}, m_window->height(), m_window->titleBarHeight()));
        return;
    }
    // The anchor is relative to the button's middle, the gap to its lower edge.
    popup->displayPopover({sender, Qt::BottomEdge, popupAnchorBelowTitleBar - sender->height() / 2.0, {}});
}

void AppDelegate::aboutButtonClicked()
{
    iconButtonClicked(m_header->iconButton());
}

bool AppDelegate::applicationShouldOpenUntitledFile()
{
    activate();
    return false;
}

void AppDelegate::activate()
{
    if (m_window->isMinimized())
        m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    // Otherwise the toolkit gives the focus to the first control of the window, the help button.
    if (m_window->focusWidget() == nullptr && m_currentController != nullptr)
        m_currentController->takeFocus();
    m_window->raise();
    m_window->activateWindow();
}

void AppDelegate::applicationOpenFiles(const QStringList &files)
{
    activate();
    const QString path = files.value(0);
    const QString extension = QFileInfo(path).suffix();
    const std::span<const Tool> tools = toolTable();
    for (std::size_t index = 0; index < tools.size(); ++index) {
        const Tool &tool = tools[index];
        if (tool.openFile == nullptr || extension != QLatin1StringView(tool.openedExtension))
            continue;
        m_sideBar->setSelectedIndex(static_cast<qint32>(index));
        tool.openFile(*controller(index), path);
    }
    updateViewForIndex();
}

void AppDelegate::showAlertWithTitle(const QString &title, const QString &andMessage, const NamedImage &andImage,
                                     QWidget *fromView)
{
    const std::shared_ptr<PopoverAlert> alert = PopoverAlert::create();
    alert->messageText = title;
    alert->informativeText = andMessage;
    alert->icon = andImage;
    alert->buttonTitles = QStringList{qtTrId("CLOSE"), qtTrId("BUG_REPORT"), qtTrId("SUPPORT")};
    UrlOpener &opener = m_services.urlOpener;
    alert->runAsPopoverForView(fromView, [&opener](int response) {
        // The second button opens the support page and the third the report page, whatever their texts.
        if (response == PopoverAlert::thirdButtonReturn)
            opener.open(QUrl(qtTrId("ABOUT_BUG_REPORT_WEB")));
        else if (response == PopoverAlert::secondButtonReturn)
            opener.open(QUrl(qtTrId("ABOUT_TWITTER_WEB")));
    });
}

void AppDelegate::windowWillClose(INAppStoreWindow *)
{
    QApplication::quit();
}

} // namespace lumora
