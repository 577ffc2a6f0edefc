// SPDX-License-Identifier: MIT
#include "WindowScene.h"
#include "tests/doubles/Pointer.h"
#include "widgets/window/TitleBarAppearance.h"

#include <QLabel>
#include <QWindow>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

namespace
{

class FixedPreference final : public DoubleClickPreference
{
public:
    explicit FixedPreference(bool miniaturizes, bool zooms = false) : m_miniaturizes(miniaturizes), m_zooms(zooms) {}
    bool miniaturizesOnDoubleClick() const override { return m_miniaturizes; }
    bool zoomsOnDoubleClick() const override { return m_zooms; }

private:
    bool m_miniaturizes;
    bool m_zooms;
};

} // namespace

class TitleBarTest : public QObject
{
    Q_OBJECT

private slots:
    void miniaturisesOnADoubleClickWhereTheUserWantsIt_data()
    {
        QTest::addColumn<bool>("preference");
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<bool>("miniaturizes");
        QTest::newRow("wanted") << true << QPoint(300, 30) << true;
        QTest::newRow("not wanted") << false << QPoint(300, 30) << false;
        QTest::newRow("on a label in the bar") << true << QPoint(420, 30) << true;
        QTest::newRow("below the bar") << true << QPoint(300, 200) << false;
    }
    void miniaturisesOnADoubleClickWhereTheUserWantsIt()
    {
        QFETCH(bool, preference);
        QFETCH(QPoint, at);
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        window.setDoubleClickPreference(std::make_shared<FixedPreference>(preference));
        auto *label = new QLabel(u"label"_s, window.titleBarView());
        label->setGeometry(400, 10, 100, 40);
        show(window);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, at);
        QVERIFY(!window.isMinimized());
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, at);
        QTEST(window.isMinimized(), "miniaturizes");
    }

    void fillsTheScreenOnADoubleClickWhereTheUserWantsThat_data()
    {
        QTest::addColumn<bool>("ownBar");
        QTest::newRow("on the window's bar") << false;
        QTest::newRow("on a bar of the program") << true;
    }
    void fillsTheScreenOnADoubleClickWhereTheUserWantsThat()
    {
        QFETCH(bool, ownBar);
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        if (ownBar)
            window.setTitleBarView(new QWidget);
        window.setDoubleClickPreference(std::make_shared<FixedPreference>(false, true));
        show(window);
        for (const bool filling : {true, false}) {
            QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(300, 30));
            QTRY_COMPARE(window.isMaximized(), filling);
            QVERIFY(!window.isMinimized());
        }
    }

    void dragsByTheWholeBar_data()
    {
        QTest::addColumn<QPoint>("press");
        QTest::addColumn<QPoint>("moved");
        QTest::newRow("near the upper edge") << QPoint(300, 8) << QPoint(40, 30);
        QTest::newRow("near the lower edge") << QPoint(300, 55) << QPoint(40, 30);
        QTest::newRow("on a label in the bar") << QPoint(420, 30) << QPoint(40, 30);
        QTest::newRow("on the content") << QPoint(300, 200) << QPoint(0, 0);
    }
    void dragsByTheWholeBar()
    {
        QFETCH(QPoint, press);
        QFETCH(QPoint, moved);
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        auto *label = new QLabel(u"label"_s, window.titleBarView());
        label->setGeometry(400, 10, 100, 40);
        show(window);
        // The platform of this test does not move windows.
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, press);
        QTest::mouseMove(window.windowHandle(), press + QPoint(2, 1));
        QCOMPARE(window.pos(), QPoint(100, 100)); // not far enough for a drag
        QTest::mouseMove(window.windowHandle(), press + QPoint(40, 30));
        QCOMPARE(window.pos(), QPoint(100, 100) + moved);
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, press);
    }

    void resizesAtItsEdges()
    {
        INAppStoreWindow window;
        window.setMinSize(QSizeF(300, 200));
        show(window);
        const auto drag = [&window](const QPoint &from, const QPoint &to, const QPoint &released) {
            QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, from);
            QTest::mouseMove(window.windowHandle(), to);
            // The pointer's place in the window, which was resized under it.
            QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, released);
        };
        drag(QPoint(598, 398), QPoint(558, 378), QPoint(558, 378));
        QCOMPARE(window.geometry(), QRect(100, 100, 560, 380));
        drag(QPoint(1, 200), QPoint(101, 200), QPoint(1, 200));
        QCOMPARE(window.geometry(), QRect(200, 100, 460, 380));
        drag(QPoint(300, 1), QPoint(300, 371), QPoint(300, 191));
        QCOMPARE(window.geometry(), QRect(200, 280, 460, 200)); // not below the smallest size

        window.setStyleMask(INAppStoreWindow::Titled);
        drag(QPoint(458, 198), QPoint(400, 150), QPoint(400, 150));
        QCOMPARE(window.geometry(), QRect(200, 280, 460, 200));
    }

    void hasGraysOfItsOwn_data()
    {
        QTest::addColumn<bool>("newer");
        QTest::addColumn<bool>("main");
        QTest::addColumn<float>("top");
        QTest::addColumn<float>("bottom");
        QTest::addColumn<float>("separator");
        QTest::newRow("newer, main") << true << true << 0.66F << 0.9F << 0.408F;
        QTest::newRow("newer, not main") << true << false << 0.878F << 0.976F << 0.655F;
        QTest::newRow("older, main") << false << true << 0.659F << 0.812F << 0.318F;
        QTest::newRow("older, not main") << false << false << 0.851F << 0.929F << 0.6F;
    }
    void hasGraysOfItsOwn()
    {
        QFETCH(bool, newer);
        QFETCH(bool, main);
        const TitleBarGrays grays = titleBarGrays(newer ? PlatformGeneration::Newer : PlatformGeneration::Older, main);
        QTEST(grays.gradientTop, "top");
        QTEST(grays.gradientBottom, "bottom");
        QTEST(grays.baselineSeparator, "separator");
    }
};

QTEST_MAIN(TitleBarTest)
#include "TitleBarTest.moc"
