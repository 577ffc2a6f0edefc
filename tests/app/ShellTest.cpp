// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"
#include "app/AppMenu.h"
#include "app/ColorBand.h"
#include "app/HeaderView.h"
#include "app/ITSidebar.h"
#include "app/PopoverAlert.h"
#include "app/PopupContentView.h"
#include "app/ToolTable.h"
#include "app/ToolViewController.h"
#include "app/services/RecordingServices.h"
#include "icons/IconsViewController.h"
#include "resources/Resources.h"
#include "ui_IconsViewController.h"
#include "ui_PopupContentView.h"
#include "widgets/Fonts.h"
#include "widgets/INAppStoreWindow.h"
#include "widgets/IconButton.h"
#include "widgets/ImageButton.h"
#include "widgets/Palette.h"
#include "widgets/SFBPopover.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// The whole application with services that remember.
struct Application
{
    Application() : delegate(services.services())
    {
        delegate.applicationDidFinishLaunching();
        delegate.popupView()->setAnimates(false);
        delegate.aboutPopupView()->setAnimates(false);
        delegate.window()->show();
    }
    RecordingServices services;
    AppDelegate delegate;
};

QString savePicture(const QTemporaryDir &folder, const QString &name, int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    const QString path = folder.filePath(name);
    return picture.save(path, "PNG") ? path : QString();
}

} // namespace

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
        QCOMPARE(application.delegate.controllers().size(), toolTable().size());
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
        QWidget *view = application.delegate.controllers().front()->view();
        QVERIFY(QTest::qWaitForWindowExposed(application.delegate.window()));
        QTRY_COMPARE(view->mapTo(application.delegate.window(), QPoint()), QPoint(65, 60));
        QCOMPARE(view->size(), QSize(835, 600));
        application.delegate.window()->resize(1100, 800);
        QTRY_COMPARE(view->size(), QSize(1035, 740));
    }

    void headerPopupAnchors_data()
    {
        QTest::addColumn<QRectF>("button");
        QTest::addColumn<QPointF>("expected");
        QTest::newRow("info button") << QRectF(775, 0, 60, 60) << QPointF(805, 30 + 660 - 60 - 20);
        QTest::newRow("no sender") << QRectF() << QPointF(0, 660 - 60 - 20);
    }
    void headerPopupAnchors()
    {
        QFETCH(QRectF, button);
        QTEST(headerPopupAnchor(button, 660, 60), "expected");
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
        QCOMPARE(delegate.header()->curBackgroundColor()->backgroundColor(), tool.color);
        QCOMPARE(delegate.sideBar()->backgroundColor(), tool.color);
        QCOMPARE(delegate.header()->topBorderView()->backgroundColor(), tool.borderColor);
        QCOMPARE(delegate.leftBorderView()->backgroundColor(), tool.borderColor);
        QCOMPARE(delegate.header()->titleLabel()->accessibleName(),
                 QString(qtTrId("APP_DEFAULT") + qtTrId(tool.headerKey)));
        const auto &help = delegate.popupContentView()->outlets();
        QCOMPARE(help.popupTitleField->text(), qtTrId(tool.helpTitleKey));
        QCOMPARE(help.popupTextField->text(), qtTrId(tool.helpTextKey));
        QCOMPARE(help.popupIconView->image(), NamedImage(QString::fromLatin1(tool.helpIcon)));
        QVERIFY(!help.popupIconView->image().isNull());
        QCOMPARE(help.popupTitleSeperator->backgroundColor(), tool.color);
        QCOMPARE(delegate.contentView()->layout()->count(), 1);
        QCOMPARE(delegate.contentView()->layout()->itemAt(0)->widget(),
                 delegate.controllers().at(static_cast<std::size_t>(index))->view());
    }

    void secondClickHidesThePopup()
    {
        Application application;
        AppDelegate &delegate = application.delegate;
        delegate.header()->infoButton()->click();
        QVERIFY(delegate.popupView()->isVisible());
        delegate.header()->infoButton()->click();
        QVERIFY(!delegate.popupView()->isVisible());
        delegate.header()->iconButton()->click();
        QVERIFY(delegate.aboutPopupView()->isVisible());
        delegate.header()->iconButton()->click();
        QVERIFY(!delegate.aboutPopupView()->isVisible());
    }

    void onePopupClosesTheOther()
    {
        Application application;
        AppDelegate &delegate = application.delegate;
        delegate.header()->infoButton()->click();
        delegate.header()->iconButton()->click();
        QVERIFY(!delegate.popupView()->isVisible());
        QVERIFY(delegate.aboutPopupView()->isVisible());
        delegate.header()->infoButton()->click();
        QVERIFY(delegate.popupView()->isVisible());
        QVERIFY(!delegate.aboutPopupView()->isVisible());
    }

    void aboutMenuTogglesTheAboutPopup()
    {
        Application application;
        application.delegate.aboutButtonClicked();
        QVERIFY(application.delegate.aboutPopupView()->isVisible());
        application.delegate.aboutButtonClicked();
        QVERIFY(!application.delegate.aboutPopupView()->isVisible());
    }

    void popupsLookAlike()
    {
        Application application;
        for (const SFBPopover *popover : {application.delegate.popupView(), application.delegate.aboutPopupView()}) {
            QCOMPARE(popover->borderColor(), palette::chromeText);
            QCOMPARE(popover->backgroundColor(), palette::window);
            QCOMPARE(popover->cornerRadius(), 0.0);
            QCOMPARE(popover->borderWidth(), 5.0);
            QCOMPARE(popover->arrowHeight(), 5.0);
            QVERIFY(popover->closesWhenApplicationBecomesInactive());
            QVERIFY(popover->closesWhenPopoverResignsKey());
        }
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

    void clearedSidebarLeavesTheToolInView()
    {
        Application application;
        AppDelegate &delegate = application.delegate;
        QTest::keyClick(delegate.sideBar(), Qt::Key_Escape);
        QCOMPARE(delegate.sideBar()->selectedIndex(), -1);
        delegate.updateViewForIndex();
        QCOMPARE(delegate.contentView()->layout()->itemAt(0)->widget(), delegate.controllers().front()->view());
    }

    void openedFiles_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<bool>("routed");
        QTest::newRow("a picture") << QStringList{u"one.png"_s} << true;
        QTest::newRow("capitals are not routed") << QStringList{u"one.PNG"_s} << false;
        QTest::newRow("another kind is not routed") << QStringList{u"one.jpg"_s} << false;
        QTest::newRow("no extension") << QStringList{u"png"_s} << false;
        QTest::newRow("only the first counts, and it is a picture") << QStringList{u"one.png"_s, u"app.ipa"_s} << true;
        QTest::newRow("only the first counts, and it is of no known kind")
            << QStringList{u"notes.txt"_s, u"one.png"_s} << false;
        QTest::newRow("none") << QStringList() << false;
    }
    void openedFiles()
    {
        QFETCH(QStringList, names);
        QFETCH(bool, routed);
        const QTemporaryDir folder;
        QStringList paths;
        for (const QString &name : std::as_const(names))
            paths << savePicture(folder, name, 1024, 1024);
        Application application;
        AppDelegate &delegate = application.delegate;
        delegate.sideBar()->setSelectedIndex(static_cast<qint32>(toolTable().size()) - 1);
        const qint32 before = delegate.sideBar()->selectedIndex();
        delegate.window()->hide();
        int refreshed = 0;
        connect(&delegate, &AppDelegate::toolChanged, this, [&refreshed] { ++refreshed; });
        delegate.applicationOpenFiles(paths);
        QVERIFY(delegate.window()->isVisible());
        QCOMPARE(refreshed, routed ? 2 : 1);
        QCOMPARE(delegate.sideBar()->selectedIndex(), routed ? 0 : before);
        auto &icons = static_cast<IconsViewController &>(*delegate.controllers().front());
        QCOMPARE(icons.outlets().sourceIconTitle->text(), routed ? names.first() : qtTrId("ICONS_SOURCE_TITLE"));
    }

    void supportAlert_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<QString>("addressKey");
        QTest::newRow("close opens nothing") << 0 << QString();
        QTest::newRow("the second opens the social page") << 1 << u"ABOUT_TWITTER_WEB"_s;
        QTest::newRow("the third opens the report page") << 2 << u"ABOUT_BUG_REPORT_WEB"_s;
    }
    void supportAlert()
    {
        QFETCH(int, button);
        QFETCH(QString, addressKey);
        Application application;
        application.delegate.showAlertWithTitle(u"Title"_s, u"Message"_s, NamedImage(u"state_warning"_s),
                                                application.delegate.header()->infoButton());
        PopoverAlert *alert = PopoverAlert::currentAlert();
        QVERIFY(alert != nullptr);
        QCOMPARE(alert->messageText, u"Title"_s);
        QCOMPARE(alert->informativeText, u"Message"_s);
        QCOMPARE(alert->buttonTitles, (QStringList{qtTrId("CLOSE"), qtTrId("BUG_REPORT"), qtTrId("SUPPORT")}));
        alert->buttons().at(button)->click();
        QList<QUrl> expected;
        if (!addressKey.isEmpty())
            expected << QUrl(qtTrId(addressKey.toUtf8().constData()));
        QCOMPARE(application.services.urlOpener.opened, expected);
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
        application.services.clipboard.copiedFiles = QStringList{savePicture(folder, u"mine.png"_s, 1024, 1024)};
        delegate.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(delegate.window()));
        QTest::keyClick(delegate.window(), Qt::Key_V, Qt::ControlModifier);
        auto &icons = static_cast<IconsViewController &>(*delegate.controllers().front());
        QCOMPARE(icons.outlets().sourceIconTitle->text(), u"mine.png"_s);
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
};

QTEST_MAIN(ShellTest)
#include "ShellTest.moc"
