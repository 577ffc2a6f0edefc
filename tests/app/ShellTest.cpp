// SPDX-License-Identifier: MIT
#include "ShellFixture.h"
#include "app/HeaderView.h"
#include "app/PopupContentView.h"
#include "app/ToolTable.h"
#include "app/sidebar/ITSidebar.h"
#include "app/sidebar/ITSidebarItemCell.h"
#include "app/sidebar/SidebarMatrix.h"
#include "resources/Resources.h"
#include "tool/PaneSides.h"
#include "tool/ToolViewController.h"
#include "tool/style/ColorBand.h"
#include "ui_IconsViewController.h"
#include "ui_PopupContentView.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/buttons/SegmentedControl.h"
#include "widgets/style/Fonts.h"

#include <QDir>
#include <QLabel>
#include <QStyle>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

class ShellTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void windowIsSetUp()
    {
        Application application;
        const INAppStoreWindow &window = *application.delegate.window();
        QCOMPARE(window.titleBarHeight(), 60.0);
        QCOMPARE(window.trafficLightButtonsLeftMargin(), 60.0);
        QCOMPARE(window.trafficLightButtonsTopMargin(), 5.0);
        QVERIFY(window.centerTrafficLightButtons());
        QVERIFY(!window.showsTitle());
        QCOMPARE(window.size(), QSize(900, 660));
        QCOMPARE(window.minimumSize(), QSize(900, 660));
        QCOMPARE(window.backgroundColor().rgb(), QColor(Qt::white).rgb());
        QVERIFY(!application.delegate.sideBar()->allowsEmptySelection());
        QCOMPARE(application.delegate.sideBar()->selectedIndex(), 0);
    }

    void headerPartsFollowTheWidth_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<QRect>("title");
        QTest::addColumn<QRect>("topBorder");
        QTest::addColumn<QRect>("infoButton");
        QTest::addColumn<QRect>("iconButton");
        QTest::newRow("smallest") << 900 << QRect(60, 12, 840, 40) << QRect(60, 55, 840, 5) << QRect(775, 0, 60, 60)
                                  << QRect(835, 0, 60, 60);
        QTest::newRow("wider") << 1200 << QRect(60, 12, 1140, 40) << QRect(60, 55, 1140, 5) << QRect(1075, 0, 60, 60)
                               << QRect(1135, 0, 60, 60);
    }
    void headerPartsFollowTheWidth()
    {
        QFETCH(int, width);
        const HeaderLayout layout = HeaderLayout::forSize({width, 60});
        QCOMPARE(layout.band, QRect(0, 0, width, 60));
        QTEST(layout.title, "title");
        QTEST(layout.topBorder, "topBorder");
        QTEST(layout.infoButton, "infoButton");
        QTEST(layout.iconButton, "iconButton");
    }

    void toolViewStandsRightOfSidebarAndBand()
    {
        Application application;
        QWidget *view = application.delegate.controller(0)->view();
        QVERIFY(QTest::qWaitForWindowExposed(application.delegate.window()));
        QTRY_COMPARE(view->mapTo(application.delegate.window(), QPoint()), QPoint(65, 60));
        QCOMPARE(view->size(), QSize(835, 600));
        application.delegate.window()->resize(1100, 800);
        QTRY_COMPARE(view->size(), QSize(1035, 740));
    }

    void headerTitleIsStyled()
    {
        const StyledText styled = AppDelegate::createAttributedStringForHeaderTitle(u"Lumora | Icons | Lumora"_s);
        QCOMPARE(styled.text(), u"Lumora | Icons | Lumora"_s);
        QCOMPARE(styled.runs(), (QList<StyledText::Run>{{0, 6, latoBold(20)}, {7, 1, latoRegular(20)}}));
        QVERIFY(AppDelegate::createAttributedStringForHeaderTitle(u"Else"_s).runs().isEmpty());
    }

    void everyToolColorsAndNamesTheChrome_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < static_cast<int>(toolTable().size()); ++index)
            QTest::newRow(toolTable()[static_cast<std::size_t>(index)].name) << index;
    }
    void everyToolColorsAndNamesTheChrome()
    {
        QFETCH(int, index);
        Application application;
        AppDelegate &delegate = application.delegate;
        const Tool &tool = toolTable()[static_cast<std::size_t>(index)];
        delegate.infoButtonClicked(delegate.header()->infoButton());
        delegate.sideBar()->setSelectedIndex(index);
        QVERIFY(!delegate.popupView()->isVisible());
        QCOMPARE(delegate.header()->curBackgroundColor()->backgroundColor(), platformColor(tool.color));
        QCOMPARE(delegate.sideBar()->backgroundColor(), platformColor(tool.color));
        QCOMPARE(delegate.header()->topBorderView()->backgroundColor(), platformColor(tool.borderColor));
        QCOMPARE(delegate.leftBorderView()->backgroundColor(), platformColor(tool.borderColor));
        QCOMPARE(delegate.header()->titleLabel()->accessibleName(),
                 QString(qtTrId("APP_DEFAULT") + qtTrId(tool.headerKey)));
        const auto &help = delegate.popupContentView()->outlets();
        QCOMPARE(help.popupTitleField->text(), qtTrId(tool.helpTitleKey));
        QCOMPARE(help.popupTextField->text(), qtTrId(tool.helpTextKey));
        QCOMPARE(help.popupIconView->image(), NamedImage(QString::fromLatin1(tool.helpIcon)));
        QVERIFY(!help.popupIconView->image().isNull());
        QCOMPARE(help.popupTitleSeperator->backgroundColor(), platformColor(tool.color));
        QCOMPARE(delegate.contentView()->layout()->count(), 1);
        QCOMPARE(delegate.contentView()->layout()->itemAt(0)->widget(),
                 delegate.controller(static_cast<std::size_t>(index))->view());
    }

    void toolKeepsItsInputsWhileAnotherIsShown()
    {
        Application application;
        AppDelegate &delegate = application.delegate;
        const Ui::IconsViewController &icons = application.icons().outlets();
        icons.customIconSizeTextField->setString(u"57"_s);
        icons.androidCheckbox->click();
        delegate.sideBar()->setSelectedIndex(4);
        delegate.sideBar()->setSelectedIndex(0);
        QCOMPARE(delegate.currentController(), static_cast<ToolViewController *>(&application.icons()));
        QCOMPARE(icons.customIconSizeTextField->string(), u"57"_s);
        QVERIFY(icons.androidCheckbox->isActive());
        QVERIFY(icons.androidCheckbox->isVisible());
    }

    void headerTitleStandsInTheMiddleInWhite()
    {
        Application application;
        const QLabel *title = application.delegate.header()->titleLabel();
        QCOMPARE(title->font(), latoRegular(20));
        QCOMPARE(title->palette().color(QPalette::WindowText), QColor(Qt::white));
        QCOMPARE(title->alignment(), Qt::AlignCenter);
    }

    void untitledDocumentsAreNeverMade()
    {
        Application application;
        application.delegate.window()->hide();
        QVERIFY(!application.delegate.applicationShouldOpenUntitledFile());
        QVERIFY(application.delegate.window()->isVisible());
        application.delegate.window()->hide();
        application.delegate.newFile();
        QVERIFY(application.delegate.window()->isVisible());
    }

    void whatTheFirstFrameNeedsNotComesBehindIt()
    {
        RecordingServices services;
        AppDelegate delegate(services.services());
        delegate.applicationDidFinishLaunching();
        QVERIFY(!delegate.isComplete());
        QCoreApplication::processEvents();
        QVERIFY(!delegate.isComplete());
        delegate.window()->show();
        QTRY_VERIFY(delegate.isComplete());
    }

    void toolsAreMadeOnceAndStay()
    {
        Application application;
        AppDelegate &delegate = application.delegate;
        std::vector<ToolViewController *> early;
        for (std::size_t index = toolTable().size(); index-- > 0;)
            early.insert(early.begin(), delegate.controller(index));
        QTRY_VERIFY(delegate.isComplete());
        for (std::size_t index = 0; index < early.size(); ++index) {
            delegate.sideBar()->setSelectedIndex(static_cast<qint32>(index));
            QCOMPARE(delegate.currentController(), early[index]);
            QCOMPARE(early[index]->window(), delegate.window());
        }
    }

    void messageOfAToolOutOfSightWaitsForItsTool()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"icons"_s));
        Application application;
        AppDelegate &delegate = application.delegate;
        IconsViewController &icons = application.icons();
        icons.popupView()->setAnimates(false);
        icons.outlets().favIconCheckbox->click();
        icons.outlets().generateIconsButton->click();
        application.services.folderChooser.confirm(folder.path());
        delegate.sideBar()->setSelectedIndex(1);
        QTRY_COMPARE_WITH_TIMEOUT(icons.popupContentView()->titleLabel()->text(),
                                  qtTrId("ICONS_NEW_FOLDER_ALERT_TITLE"), 30000);
        QCoreApplication::processEvents();
        QVERIFY(!icons.popupView()->isVisible());
        // The tool's item in the sidebar shows a dot.
        const QList<ITSidebarItemCell *> items = delegate.sideBar()->matrix()->cells();
        QVERIFY(items.at(0)->hasBadge());
        QCOMPARE(items.at(0)->accessibleDescription(), qtTrId("ACCESSIBLE_JOB_ENDED"));
        QVERIFY(!items.at(1)->hasBadge());
        delegate.sideBar()->setSelectedIndex(0);
        QVERIFY(!items.at(0)->hasBadge());
        QTRY_VERIFY(icons.popupView()->isVisible());
        QCOMPARE(icons.popupContentView()->titleLabel()->text(), qtTrId("ICONS_NEW_FOLDER_ALERT_TITLE"));
        QCOMPARE(icons.popupView()->popoverWindow()->parentWindow(), delegate.window());
    }

    void clearedSidebarLeavesTheToolInView()
    {
        Application application;
        AppDelegate &delegate = application.delegate;
        QTest::keyClick(delegate.sideBar(), Qt::Key_Escape);
        QCOMPARE(delegate.sideBar()->selectedIndex(), -1);
        delegate.updateViewForIndex();
        QCOMPARE(delegate.contentView()->layout()->itemAt(0)->widget(), delegate.controller(0)->view());
        QCOMPARE(delegate.currentController(), delegate.controller(0));
    }

    void everyControlIsNamedAndReachable_data() { everyToolColorsAndNamesTheChrome_data(); }
    void everyControlIsNamedAndReachable()
    {
        QFETCH(int, index);
        Application application;
        AppDelegate &delegate = application.delegate;
        delegate.sideBar()->setSelectedIndex(index);
        QVERIFY(QTest::qWaitForWindowExposed(delegate.window()));
        QSet<QWidget *> onTheWay;
        for (QWidget *next = delegate.window()->nextInFocusChain(); next != delegate.window();
             next = next->nextInFocusChain())
            onTheWay << next;
        const auto controls = delegate.window()->findChildren<QAbstractButton *>();
        for (QAbstractButton *control : controls) {
            if (!control->isVisible())
                continue;
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
            const QString name = accessible->text(QAccessible::Name);
            QVERIFY2(!name.isEmpty(), qPrintable(control->objectName() + u' ' +
                                                 QString::fromLatin1(control->metaObject()->className())));
            if (control->focusPolicy() != Qt::NoFocus)
                QVERIFY2(onTheWay.contains(control), qPrintable(name));
        }
    }

    void theToolHasTheFocusAtTheStart()
    {
        Application application;
        application.delegate.activate();
        QVERIFY(QTest::qWaitForWindowActive(application.delegate.window()));
        const QWidget *focused = QApplication::focusWidget();
        QVERIFY(focused != nullptr);
        QVERIFY(application.delegate.currentController()->view()->isAncestorOf(focused));
        // A second start moves nothing.
        application.delegate.header()->infoButton()->setFocus();
        application.delegate.activate();
        QCOMPARE(QApplication::focusWidget(), application.delegate.header()->infoButton());
    }

    void theSwitchOfTheSidesCoversNoText_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::addColumn<ToolSide>("side");
        for (const QString &tool : {u"icons"_s, u"placeholders"_s, u"resizer"_s, u"color"_s, u"devices"_s}) {
            QTest::addRow("%s, classic", qPrintable(tool)) << tool << ToolSide::Classic;
            QTest::addRow("%s, today", qPrintable(tool)) << tool << ToolSide::Today;
        }
    }
    void theSwitchOfTheSidesCoversNoText()
    {
        QFETCH(const QString, tool);
        QFETCH(const ToolSide, side);
        Application application;
        application.delegate.activate();
        application.delegate.showTool(tool);
        PaneSides *sides = application.delegate.currentController()->sides();
        sides->show(side);
        const QWidget *control = sides->control();
        const QRect covered(control->mapToGlobal(QPoint()), control->size());
        for (const QLabel *label : application.delegate.currentController()->view()->findChildren<QLabel *>()) {
            if (!label->isVisible() || label->text().isEmpty())
                continue;
            const QRect words = label->style()->itemTextRect(label->fontMetrics(), label->contentsRect(),
                                                             static_cast<int>(label->alignment()), true, label->text());
            QVERIFY2(!words.translated(label->mapToGlobal(QPoint())).intersects(covered), qPrintable(label->text()));
        }
    }

    void aToolThatIsShownInTheBackgroundHasTheFocusLater()
    {
        Application application;
        INAppStoreWindow *window = application.delegate.window();
        application.delegate.activate();
        QVERIFY(QTest::qWaitForWindowActive(window));
        // Files come by drag from another program, which has the keyboard.
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        application.delegate.showTool(u"placeholders"_s);
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTRY_VERIFY(QApplication::focusWidget() != nullptr);
        QVERIFY(application.delegate.currentController()->view()->isAncestorOf(QApplication::focusWidget()));
    }

    void tabReachesHeaderSidebarAndTool()
    {
        Application application;
        INAppStoreWindow *window = application.delegate.window();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        const HeaderView *header = application.delegate.header();
        for (qint32 index = 0; index < static_cast<qint32>(toolTable().size()); ++index) {
            ITSidebar *sidebar = application.delegate.sideBar();
            sidebar->setSelectedIndex(index);
            sidebar->setFocus();
            QSet<const QWidget *> stops;
            for (int press = 0; press < 60 && !stops.contains(QApplication::focusWidget()); ++press) {
                stops.insert(QApplication::focusWidget());
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(QApplication::focusWidget(), sidebar);
            QVERIFY(stops.contains(header->infoButton()) && stops.contains(header->iconButton()));
            QVERIFY(stops.size() > 3);
        }
    }
};

QTEST_MAIN(ShellTest)
#include "ShellTest.moc"
