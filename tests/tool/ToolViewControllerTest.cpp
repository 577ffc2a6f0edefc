// SPDX-License-Identifier: MIT
#include "tool/ToolViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "tool/AlertContentView.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/Palette.h"

#include <QDialog>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

class PlainTool : public ToolViewController
{
public:
    explicit PlainTool(const Services &services) : ToolViewController(services)
    {
        view()->resize(835, 600);
        panel = new QWidget(view());
        panel->setGeometry(400, 100, 300, 200);
        button = new QWidget(panel);
        button->setGeometry(20, 30, 120, 40);
        createPopup();
        popupView()->setAnimates(false);
    }

    QWidget *panel;
    QWidget *button;
};

/// The tool's view in a window as the shell lays it out: right of sidebar and band, under the title bar.
struct Window
{
    explicit Window(ToolViewController &tool)
    {
        window.resize(900, 660);
        tool.view()->setParent(&window);
        tool.view()->setGeometry(65, 60, 835, 600);
        window.show();
    }
    QWidget window;
};

/// The point at which the popover's arrow points, from the window's lower left corner, y upwards.
QPointF arrowTip(const SFBPopover &popover, const QWidget &window)
{
    const SFBPopoverWindow *balloon = popover.popoverWindow();
    const SFBPopoverWindowFrame *frame = balloon->popoverWindowFrame();
    const QPointF tip = frame->attachmentPoint();
    const qreal margin = SFBPopoverWindowFrame::shadowMargin;
    const QPointF inFrame(margin + tip.x(), frame->height() - margin - tip.y());
    const QPointF global = frame->mapToGlobal(inFrame);
    const QPointF inWindow = window.mapFromGlobal(global);
    return {inWindow.x(), window.height() - inWindow.y()};
}

} // namespace

class ToolViewControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void popupLooks()
    {
        PlainTool tool(m_services.services());
        const SFBPopover &popover = *tool.popupView();
        QCOMPARE(popover.backgroundColor(), palette::window);
        QCOMPARE(popover.cornerRadius(), 0.0);
        QCOMPARE(popover.borderWidth(), 5.0);
        QCOMPARE(popover.arrowHeight(), 5.0);
        QVERIFY(popover.closesWhenApplicationBecomesInactive());
        QVERIFY(popover.closesWhenPopoverResignsKey());
        // The other settings are the defaults.
        QCOMPARE(popover.arrowWidth(), 20.0);
        QCOMPARE(popover.position(), PopoverPosition::Below);
        QCOMPARE(popover.viewMargin(), 0.0);
        QVERIFY(!popover.movable());
        QCOMPARE(tool.popupContentView()->delegate(), static_cast<AlertContentViewDelegate *>(&tool));
    }

    void messageColors_data()
    {
        QTest::addColumn<bool>("isError");
        QTest::addColumn<QColor>("light");
        QTest::addColumn<QColor>("dark");
        QTest::newRow("an error is red") << true << palette::errorLight << palette::errorDark;
        QTest::newRow("a success is green") << false << palette::successLight << palette::successDark;
    }
    void messageColors()
    {
        QFETCH(bool, isError);
        QFETCH(QColor, light);
        QFETCH(QColor, dark);
        PlainTool tool(m_services.services());
        const Window window(tool);
        tool.showPopupWithTitle(u"Title"_s, u"Message"_s, tool.button, isError);
        QVERIFY(tool.popupView()->isVisible());
        QCOMPARE(tool.popupView()->borderColor(), light);
        QCOMPARE(tool.popupContentView()->closeButton()->normalColor(), light);
        QCOMPARE(tool.popupContentView()->closeButton()->hoverColor(), dark);
        QCOMPARE(tool.popupContentView()->closeButton()->activeColor(), dark);
        QCOMPARE(tool.popupContentView()->titleLabel()->text(), u"Title"_s);
        QCOMPARE(tool.popupContentView()->messageLabel()->text(), u"Message"_s);
    }

    void secondMessageHidesThePopupAndKeepsItsColorForTheNext()
    {
        PlainTool tool(m_services.services());
        const Window window(tool);
        tool.showPopupWithTitle(u"Good"_s, u"It went well"_s, tool.button, false);
        QVERIFY(tool.popupView()->isVisible());
        tool.showPopupWithTitle(u"Bad"_s, u"It did not"_s, tool.button, true);
        QVERIFY(!tool.popupView()->isVisible());
        QCOMPARE(tool.popupView()->borderColor(), palette::errorLight);
        QCOMPARE(tool.popupContentView()->titleLabel()->text(), u"Bad"_s);
    }

    void arrowPointsBelowTheMiddleOfTheControl()
    {
        PlainTool tool(m_services.services());
        const Window window(tool);
        tool.showPopupWithTitle(u"T"_s, u"M"_s, tool.button, false);
        // The button: x 420 to 540 and y 130 to 170 from the tool's top, that is 600 - 170 from its bottom.
        QCOMPARE(arrowTip(*tool.popupView(), window.window), QPointF(65 + 480, 430 - 5));
    }

    void arrowWithoutAControl()
    {
        PlainTool tool(m_services.services());
        Window window(tool);
        // There is room around the spot for a balloon below it.
        window.window.move(200, -200);
        tool.showPopupWithTitle(u"T"_s, u"M"_s, nullptr, false);
        QCOMPARE(arrowTip(*tool.popupView(), window.window), QPointF(65, -5));
    }

    void messageWaitsWhileAnotherToolIsInView()
    {
        PlainTool tool(m_services.services());
        const Window window(tool);
        tool.setWindow(tool.view()->window());
        tool.view()->hide();
        tool.view()->setParent(nullptr);
        QCOMPARE(tool.window(), &window.window);
        tool.showPopupWithTitle(u"T"_s, u"M"_s, tool.button, false);
        QCoreApplication::processEvents();
        QVERIFY(!tool.popupView()->isVisible());
        tool.view()->setParent(tool.window());
        tool.view()->setGeometry(65, 60, 835, 600);
        tool.view()->show();
        QTRY_VERIFY(tool.popupView()->isVisible());
        QCOMPARE(tool.popupView()->popoverWindow()->parentWindow(), &window.window);
        QCOMPARE(arrowTip(*tool.popupView(), window.window), QPointF(65 + 480, 430 - 5));
        // It is shown once.
        tool.popupView()->closePopover();
        tool.view()->hide();
        tool.view()->show();
        QCoreApplication::processEvents();
        QVERIFY(!tool.popupView()->isVisible());
    }

    void messageWaitsForAnOpenDialog()
    {
        PlainTool tool(m_services.services());
        Window window(tool);
        QDialog dialog(&window.window);
        dialog.setWindowModality(Qt::WindowModal);
        dialog.open();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        tool.showPopupWithTitle(u"T"_s, u"M"_s, tool.button, false);
        QVERIFY(!tool.popupView()->isVisible());
        dialog.reject();
        QTRY_VERIFY(tool.popupView()->isVisible());
    }

    void messageGoesWithItsTool()
    {
        PlainTool tool(m_services.services());
        const Window window(tool);
        const QSignalSpy left(&tool, &ToolViewController::leftView);
        tool.showPopupWithTitle(u"T"_s, u"M"_s, tool.button, false);
        QVERIFY(tool.popupView()->isVisible());
        tool.view()->hide();
        QVERIFY(!tool.popupView()->isVisible());
        QCOMPARE(left.count(), 1);
    }

    void anotherMessageFollowsTheOneThatItHid_data()
    {
        QTest::addColumn<QString>("second");
        QTest::addColumn<bool>("follows");
        QTest::newRow("the same message only hides it") << u"The size is missing"_s << false;
        QTest::newRow("another one is shown then") << u"The picture is missing"_s << true;
    }
    void anotherMessageFollowsTheOneThatItHid()
    {
        QFETCH(QString, second);
        QFETCH(bool, follows);
        PlainTool tool(m_services.services());
        const Window window(tool);
        tool.showPopupWithTitle(u"T"_s, u"The size is missing"_s, tool.button, true);
        tool.showPopupWithTitle(u"T"_s, second, tool.button, true);
        QVERIFY(!tool.popupView()->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(tool.popupView()->isVisible(), follows);
        QCOMPARE(tool.popupContentView()->messageLabel()->text(), second);
    }

    void closeButtonClosesThePopup()
    {
        PlainTool tool(m_services.services());
        const Window window(tool);
        tool.showPopupWithTitle(u"T"_s, u"M"_s, tool.button, false);
        tool.popupContentView()->closeButton()->click();
        QVERIFY(!tool.popupView()->isVisible());
        tool.popupCloseButtonPressed();
        QVERIFY(!tool.popupView()->isVisible());
    }

    void closeButtonWithoutDelegateIsInert()
    {
        struct Deaf : AlertContentViewDelegate
        {
        } deaf;
        AlertContentView view;
        view.closeButtonClicked();
        view.setDelegate(&deaf);
        view.closeButtonClicked();
        QCOMPARE(view.delegate(), &deaf);
    }

    void contentKeepsItsSizeWhateverTheTexts()
    {
        AlertContentView view;
        const QSize before = view.size();
        view.setTitle(QString(400, u'W'), QString(4000, u'W'));
        QCoreApplication::processEvents();
        QCOMPARE(view.size(), before);
    }

    void viewGoesWithItsControllerOrItsWindow()
    {
        QPointer<QWidget> view;
        {
            PlainTool tool(m_services.services());
            view = tool.view();
        }
        QVERIFY(view.isNull());
        auto tool = std::make_unique<PlainTool>(m_services.services());
        {
            const Window window(*tool);
        }
        QVERIFY(tool->view() == nullptr);
    }

private:
    RecordingServices m_services;
};

QTEST_MAIN(ToolViewControllerTest)
#include "ToolViewControllerTest.moc"
