// SPDX-License-Identifier: MIT
#include "app/AppMenu.h"
#include "ShellFixture.h"
#include "app/ToolTable.h"
#include "app/sidebar/ITSidebar.h"
#include "resources/Resources.h"
#include "ui_IconsViewController.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

class AppMenuTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void shortcuts()
    {
        Application application;
        AppDelegate &delegate = application.delegate;
        const AppMenu menu(delegate);
        delegate.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(delegate.window()));
        QTest::keyClick(delegate.window(), Qt::Key_F1);
        QVERIFY(delegate.popupView()->isVisible());
        delegate.popupView()->closePopover();
        delegate.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(delegate.window()));
        QTest::keyClick(delegate.window(), Qt::Key_O, Qt::ControlModifier);
        QVERIFY(application.services.fileChooser.isOpen());
        for (int index = 0; index < static_cast<int>(toolTable().size()); ++index) {
            QTest::keyClick(delegate.window(), static_cast<Qt::Key>(Qt::Key_1 + index), Qt::ControlModifier);
            QCOMPARE(delegate.sideBar()->selectedIndex(), index);
        }
    }

    void shortcutsWorkFromAPanelToo()
    {
        Application application;
        AppDelegate &delegate = application.delegate;
        const AppMenu menu(delegate);
        QWidget panel(nullptr, Qt::Tool);
        panel.show();
        panel.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        QTest::keyClick(&panel, Qt::Key_4, Qt::ControlModifier);
        QCOMPARE(delegate.sideBar()->selectedIndex(), 3);
        QTest::keyClick(&panel, Qt::Key_Q, Qt::ControlModifier);
        QTRY_VERIFY(!delegate.window()->isVisible());
    }

    void pasteShortcutTakesACopiedFile()
    {
        const QTemporaryDir folder;
        Application application;
        AppDelegate &delegate = application.delegate;
        const AppMenu menu(delegate);
        application.services.clipboard.copiedFiles = QStringList{savePicture(folder, u"mine.png"_s)};
        delegate.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(delegate.window()));
        QTest::keyClick(delegate.window(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(application.icons().outlets().sourceIconTitle->text(), u"mine.png"_s);
    }

    void commandsGoToTheToolInViewWithAClearedSidebar()
    {
        const QTemporaryDir folder;
        Application application;
        AppDelegate &delegate = application.delegate;
        const AppMenu menu(delegate);
        application.services.clipboard.copiedFiles = QStringList{savePicture(folder, u"mine.png"_s)};
        delegate.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(delegate.window()));
        QTest::keyClick(delegate.sideBar(), Qt::Key_Escape);
        QCOMPARE(delegate.sideBar()->selectedIndex(), -1);
        QTest::keyClick(delegate.window(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(application.icons().outlets().sourceIconTitle->text(), u"mine.png"_s);
        QTest::keyClick(delegate.window(), Qt::Key_O, Qt::ControlModifier);
        QVERIFY(application.services.fileChooser.isOpen());
    }
};

QTEST_MAIN(AppMenuTest)
#include "AppMenuTest.moc"
