// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <QObject>

#include <memory>

class QAction;

namespace lumora
{

class AppDelegate;

/// The window's commands: a menu that opens by right click on the header, by the menu key or F10, and shortcuts that
/// work everywhere in the window.
class AppMenu final : public QObject
{
    Q_OBJECT

public:
    /// The delegate has built its window and outlives the menu.
    explicit AppMenu(AppDelegate &delegate);

    QMenu &menu() { return m_menu; }

private:
    QAction *add(QMenu *menu, const QString &text, const QKeySequence &shortcut, std::function<void()> triggered);
    void addFileMenu();
    void addEditMenu();
    void addToolsMenu();
    void addHelpMenu();
    void toolChanged();

    AppDelegate &m_delegate;
    QMenu m_menu;
    QAction *m_open = nullptr;
    QAction *m_paste = nullptr;
    QList<QAction *> m_tools;
};

} // namespace lumora
