// SPDX-License-Identifier: MIT
#include "tests/doubles/Pointer.h"
#include "widgets/window/INWindowButton.h"
#include "widgets/window/INWindowButtonGroup.h"

#include <QSignalSpy>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class WindowButtonTest : public QObject
{
    Q_OBJECT

private:
    static constexpr auto notification = &INWindowButtonGroup::INWindowButtonGroupDidUpdateRolloverStateNotification;

private slots:
    void findsGroupsByIdentifier()
    {
        INWindowButtonGroup *group = INWindowButtonGroup::groupWithIdentifier(u"one"_s);
        QCOMPARE(group->identifier(), u"one"_s);
        QCOMPARE(INWindowButtonGroup::groupWithIdentifier(u"one"_s), group);
        QVERIFY(INWindowButtonGroup::groupWithIdentifier(u"two"_s) != group);
        INWindowButtonGroup *standard = INWindowButtonGroup::groupWithIdentifier({});
        QVERIFY(standard->identifier().endsWith(u".defaultWindowButtonGroup"_s));
        QCOMPARE(INWindowButtonGroup::groupWithIdentifier(standard->identifier()), standard);
        QCOMPARE(INWindowButton().group(), standard);
    }

    void countsCaptures_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("after");
        QTest::addColumn<int>("notifications");
        QTest::newRow("the first") << 0 << 1 << 1 << 1;
        QTest::newRow("another") << 1 << 2 << 2 << 1;
        QTest::newRow("the last one goes") << 1 << 0 << 0 << 1;
        QTest::newRow("the same number") << 2 << 2 << 2 << 0;
        QTest::newRow("a negative number is refused") << 0 << -1 << 0 << 0;
        QTest::newRow("a negative number is refused in the middle too") << 2 << -3 << 2 << 0;
    }
    void countsCaptures()
    {
        QFETCH(int, before);
        QFETCH(int, to);
        INWindowButtonGroup *group = INWindowButtonGroup::groupWithIdentifier(u"counting"_s);
        group->setNumberOfCaptures(before);
        const QSignalSpy spy(group, notification);
        group->setNumberOfCaptures(to);
        QTEST(group->numberOfCaptures(), "after");
        QTEST(static_cast<int>(spy.count()), "notifications");
        QCOMPARE(group->shouldDisplayRollOver(), group->numberOfCaptures() > 0);
        group->resetMouseCaptures();
        QCOMPARE(group->numberOfCaptures(), 0);
    }

    void refusesAnExtraRelease()
    {
        INWindowButtonGroup *group = INWindowButtonGroup::groupWithIdentifier(u"extra"_s);
        const QSignalSpy spy(group, notification);
        group->didReleaseMousePointer();
        QCOMPARE(group->numberOfCaptures(), 0);
        QCOMPARE(spy.count(), 0);
        group->didCaptureMousePointer();
        QCOMPARE(group->numberOfCaptures(), 1);
        group->didReleaseMousePointer();
    }

    void rollsOverTogether()
    {
        QWidget window;
        INWindowButton close(u"pair"_s, u"close"_s, &window);
        INWindowButton zoom(u"pair"_s, u"zoom"_s, &window);
        INWindowButton stranger(u"other"_s, u"close"_s, &window);
        testing::showAside(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        testing::enter(&close);
        QCOMPARE(close.image(), close.rolloverImage());
        QCOMPARE(zoom.image(), zoom.rolloverImage());
        QCOMPARE(stranger.image(), stranger.activeImage());
        testing::leave(&close);
        QCOMPARE(close.image(), close.activeImage());
        QCOMPARE(zoom.image(), zoom.activeImage());
        testing::leave(&close);
        QCOMPARE(close.group()->numberOfCaptures(), 0);
    }

    void releasesWhenItGoesAwayUnderTheMouse()
    {
        QWidget window;
        auto *close = new INWindowButton(u"going"_s, u"close"_s, &window);
        testing::showAside(&window);
        testing::enter(close);
        window.hide();
        QCOMPARE(close->group()->numberOfCaptures(), 0);
        window.show();
        testing::enter(close);
        INWindowButtonGroup *group = close->group();
        QCOMPARE(group->numberOfCaptures(), 1);
        delete close;
        QCOMPARE(group->numberOfCaptures(), 0);
    }

    void picksItsImage_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("key");
        QTest::addColumn<bool>("rollover");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("image");
        QTest::newRow("key window") << true << true << false << false << u"window_close_active"_s;
        QTest::newRow("another window") << true << false << false << false << u"window_close_notkey"_s;
        QTest::newRow("rollover") << true << true << true << false << u"window_close_rollover"_s;
        QTest::newRow("rollover in another window") << true << false << true << false << u"window_close_rollover"_s;
        QTest::newRow("disabled") << false << true << false << false << u"window_close_inactive"_s;
        QTest::newRow("disabled, rollover") << false << true << true << false << u"window_close_inactive"_s;
        QTest::newRow("held down") << true << true << true << true << u"window_close_pressed"_s;
    }
    void picksItsImage()
    {
        QFETCH(bool, enabled);
        QFETCH(bool, key);
        QFETCH(bool, rollover);
        QFETCH(bool, down);
        QWidget window;
        INWindowButton button(u"images"_s, u"close"_s, &window);
        testing::showAside(&window);
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QWidget other;
        if (!key) {
            other.show();
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
        }
        button.setEnabled(enabled);
        button.group()->setNumberOfCaptures(rollover ? 1 : 0);
        button.setDown(down);
        QTEST(button.image().name(), "image");
        button.group()->resetMouseCaptures();
    }

    void drawsItsImage_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::newRow("scale 1") << 1.0;
        QTest::newRow("scale 2") << 2.0;
    }
    void drawsItsImage()
    {
        QFETCH(qreal, scale);
        QWidget window;
        INWindowButton button(u"drawing"_s, u"close"_s, &window);
        testing::showAside(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(button.size(), QSize(16, 16));
        QCOMPARE(button.mouseTrackingArea(), QRect(0, 0, 16, 16));
        button.setDown(true);
        const QImage picture = testing::pictureOf(&button, scale);
        const QImage pressed = button.pressedImage().pixmap(QSizeF(16, 16), scale).toImage();
        for (const QPoint &point : {QPoint(3, 8), QPoint(8, 8), QPoint(8, 3)})
            QCOMPARE(picture.pixelColor(point * scale), pressed.pixelColor(point * scale));
        QCOMPARE(picture.pixelColor(QPoint(3, 8) * scale).alpha(), 255);
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
    }
};

QTEST_MAIN(WindowButtonTest)
#include "WindowButtonTest.moc"
