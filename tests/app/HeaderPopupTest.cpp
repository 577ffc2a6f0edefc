// SPDX-License-Identifier: MIT
#include "ShellFixture.h"
#include "app/HeaderView.h"
#include "app/PopupContentView.h"
#include "app/sidebar/ITSidebar.h"
#include "resources/Resources.h"
#include "tool/PaneSides.h"
#include "tool/PopoverAlert.h"
#include "ui_PopupContentView.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/style/Palette.h"

#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

class HeaderPopupTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
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

    void helpIsThatOfTheSideInView_data()
    {
        QTest::addColumn<int>("tool");
        QTest::addColumn<QString>("classic"); ///< in the text
        QTest::addColumn<QString>("today");
        QTest::newRow("icons") << 0 << u"favicon"_s << u"Ctrl+T"_s;
        QTest::newRow("placeholders") << 1 << u"gray pictures"_s << u"social cards"_s;
        QTest::newRow("down-scaler") << 2 << u"@2x or -hd"_s << u"drawable-xxxhdpi"_s;
        QTest::newRow("colors") << 3 << u"UIColor"_s << u"oklch()"_s;
        QTest::newRow("devices") << 4 << u"seventeen"_s << u"iPhone15,2"_s;
        QTest::newRow("packages, which have one side") << 5 << u".ipa package"_s << QString();
    }
    void helpIsThatOfTheSideInView()
    {
        QFETCH(int, tool);
        QFETCH(QString, classic);
        QFETCH(QString, today);
        Application application;
        AppDelegate &delegate = application.delegate;
        const auto help = [&delegate] { return delegate.popupContentView()->outlets().popupTextField->text(); };
        delegate.sideBar()->setSelectedIndex(tool);
        delegate.header()->infoButton()->click();
        QVERIFY2(help().contains(classic) && !help().contains(u"Ctrl+T"_s), qPrintable(help()));
        PaneSides *sides = delegate.currentController()->sides();
        QCOMPARE(sides == nullptr, today.isEmpty());
        if (sides == nullptr)
            return;
        sides->show(ToolSide::Today);
        QVERIFY2(help().contains(today) && help().contains(u"Ctrl+T"_s), qPrintable(help()));
        sides->show(ToolSide::Classic);
        QVERIFY2(help().contains(classic), qPrintable(help()));
    }

    void switchingToolsClosesBoth_data()
    {
        QTest::addColumn<bool>("about");
        QTest::newRow("help") << false;
        QTest::newRow("about") << true;
    }
    void switchingToolsClosesBoth()
    {
        QFETCH(bool, about);
        Application application;
        AppDelegate &delegate = application.delegate;
        const SFBPopover *popup = about ? delegate.aboutPopupView() : delegate.popupView();
        (about ? delegate.header()->iconButton() : delegate.header()->infoButton())->click();
        QVERIFY(popup->isVisible());
        delegate.sideBar()->setSelectedIndex(2);
        QVERIFY(!popup->isVisible());
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
        application.delegate.showAlertWithTitle(u"Title"_s, u"Message"_s, NamedImage(u"help_icon_icons"_s),
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

    void popupsStayOnTheScreen_data()
    {
        // The upper right corners of the window and of the screen's usable area; part of the window is off the screen.
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        const int middle = screen.center().x() + 100;
        const int low = screen.bottom() - 100;
        QTest::addColumn<QPoint>("corner");
        QTest::newRow("in the middle") << QPoint(middle, screen.top());
        QTest::newRow("at the right edge, as a window that fills the screen") << screen.topRight();
        QTest::newRow("at the lower edge") << QPoint(middle, low);
        QTest::newRow("in the lower right corner") << QPoint(screen.right(), low);
        QTest::newRow("in the lower left corner") << QPoint(screen.left() + 160, low);
    }
    void popupsStayOnTheScreen()
    {
        QFETCH(QPoint, corner);
        Application application;
        AppDelegate &delegate = application.delegate;
        delegate.window()->move(corner.x() + 1 - delegate.window()->width(), corner.y());
        QCOMPARE(delegate.window()->frameGeometry().topRight(), corner);
        const QRect screen = delegate.window()->screen()->availableGeometry();
        for (ImageButton *button : {delegate.header()->infoButton(), delegate.header()->iconButton()}) {
            button->click();
            const SFBPopover &popup =
                button == delegate.header()->infoButton() ? *delegate.popupView() : *delegate.aboutPopupView();
            QVERIFY(popup.isVisible());
            const QRect content(popup.popoverWindow()->contentView()->mapToGlobal(QPoint()),
                                popup.popoverWindow()->contentView()->size());
            QCOMPARE(content.intersected(screen), content);
            button->click();
        }
    }
};

QTEST_MAIN(HeaderPopupTest)
#include "HeaderPopupTest.moc"
