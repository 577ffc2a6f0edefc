// SPDX-License-Identifier: MIT
#include "AppMenu.h"

#include "AppDelegate.h"
#include "HeaderView.h"
#include "ToolTable.h"
#include "app/sidebar/ITSidebar.h"
#include "app/sidebar/ITSidebarItemCell.h"
#include "app/sidebar/SidebarMatrix.h"
#include "tool/ToolViewController.h"
#include "tool/style/ToolTip.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/window/INAppStoreWindow.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>

namespace lumora
{

namespace
{

/// Passes an editing command to the edited text; widgets that accept it have a slot of that name.
void editText(const char *slot)
{
    QWidget *focused = QApplication::focusWidget();
    if (focused != nullptr && focused->metaObject()->indexOfSlot(QByteArray(QByteArray(slot) + "()").constData()) >= 0)
        QMetaObject::invokeMethod(focused, slot);
}

} // namespace

AppMenu::AppMenu(AppDelegate &delegate) : m_delegate(delegate)
{
    addFileMenu();
    addEditMenu();
    addToolsMenu();
    addHelpMenu();

    QWidget *window = delegate.window();
    auto *showMenu = new QAction(this);
    showMenu->setShortcut(Qt::Key_F10);
    showMenu->setShortcutContext(Qt::ApplicationShortcut);
    connect(showMenu, &QAction::triggered, this, [this] {
        const QWidget *header = m_delegate.header();
        m_menu.popup(header->mapToGlobal(QPoint(0, header->height())));
    });
    window->addAction(showMenu);

    // Not only the header: the menu key goes to the focused widget, and widgets without a menu of their own pass it on.
    window->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(window, &QWidget::customContextMenuRequested, this,
            [this, window](QPoint position) { m_menu.popup(window->mapToGlobal(position)); });

    connect(&delegate, &AppDelegate::toolChanged, this, &AppMenu::toolChanged);
    toolChanged();
}

QAction *AppMenu::add(QMenu *menu, const QString &text, const QKeySequence &shortcut, std::function<void()> triggered)
{
    auto *action = new QAction(text, this);
    action->setShortcut(shortcut);
    // Also while a popover or a floating panel has the keyboard: they are windows of their own.
    action->setShortcutContext(Qt::ApplicationShortcut);
    connect(action, &QAction::triggered, this, std::move(triggered));
    menu->addAction(action);
    m_delegate.window()->addAction(action);
    return action;
}

void AppMenu::addFileMenu()
{
    QMenu *menu = m_menu.addMenu(qtTrId("MENU_FILE"));
    m_open = add(menu, qtTrId("MENU_OPEN"), QKeySequence::Open,
                 [this] { m_delegate.currentController()->browseButtonPressed(); });
    add(menu, qtTrId("MENU_SHOW_WINDOW"), {}, [this] { m_delegate.newFile(); });
    menu->addSeparator();
    add(menu, qtTrId("MENU_CLOSE_WINDOW"), QKeySequence::Close, [this] { m_delegate.window()->performClose(); });
    add(menu, qtTrId("MENU_QUIT"), QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { m_delegate.window()->performClose(); });
}

void AppMenu::addEditMenu()
{
    QMenu *menu = m_menu.addMenu(qtTrId("MENU_EDIT"));
    add(menu, qtTrId("MENU_CUT"), QKeySequence::Cut, [] { editText("cut"); });
    add(menu, qtTrId("MENU_COPY"), QKeySequence::Copy, [] { editText("copy"); });
    // An edited text gets the keys before they arrive here.
    m_paste = add(menu, qtTrId("MENU_PASTE"), QKeySequence::Paste, [this] { m_delegate.currentController()->paste(); });
    add(menu, qtTrId("MENU_SELECT_ALL"), QKeySequence::SelectAll, [] { editText("selectAll"); });
}

void AppMenu::addToolsMenu()
{
    QMenu *menu = m_menu.addMenu(qtTrId("MENU_TOOLS"));
    auto *group = new QActionGroup(this);
    int index = 0;
    for (const Tool &tool : toolTable()) {
        const QString name = qtTrId(tool.helpTitleKey);
        const QKeySequence keys(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index));
        QAction *action = add(menu, name, keys, [this, index] { m_delegate.sideBar()->setSelectedIndex(index); });
        m_delegate.sideBar()->matrix()->cells().at(index)->setToolTip(tipWithKeys(name, keys));
        action->setCheckable(true);
        group->addAction(action);
        m_tools << action;
        ++index;
    }
}

void AppMenu::addHelpMenu()
{
    QMenu *menu = m_menu.addMenu(qtTrId("MENU_HELP"));
    add(menu, qtTrId("MENU_TOOL_HELP"), QKeySequence::HelpContents,
        [this] { m_delegate.infoButtonClicked(m_delegate.header()->infoButton()); });
    ImageButton *help = m_delegate.header()->infoButton();
    help->setToolTip(tipWithKeys(help->accessibleName(), QKeySequence::HelpContents));
    add(menu, qtTrId("MENU_ABOUT"), {}, [this] { m_delegate.aboutButtonClicked(); });
}

void AppMenu::toolChanged()
{
    const ToolViewController *controller = m_delegate.currentController();
    m_open->setEnabled(controller->takesFiles());
    m_paste->setEnabled(controller->takesClipboard());
    const qint32 index = m_delegate.sideBar()->selectedIndex();
    if (index >= 0)
        m_tools.at(index)->setChecked(true);
}

} // namespace lumora
