// SPDX-License-Identifier: MIT
#include "WindowScene.h"
#include "tests/doubles/Pointer.h"
#include "widgets/window/TitleBarAppearance.h"

#include <QSet>

#include <functional>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

class TitleBarDrawingTest : public QObject
{
    Q_OBJECT

private slots:
    void drawsAHighlightAlongTheTop()
    {
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        window.setInactiveTitleBarStartColor(Qt::black);
        window.setInactiveTitleBarEndColor(Qt::black);
        show(window);
        QWidget stranger;
        stranger.show();
        stranger.activateWindow();
        QTRY_VERIFY(!window.isMainWindow());
        const QImage picture = pictureOf(window.titleBarView());
        // White at an alpha of 0.12.
        QVERIFY(qAbs(picture.pixelColor(300, 0).red() - 31) <= 1);
        QCOMPARE(picture.pixelColor(300, 1), QColor(Qt::black));
    }

    void drawsNoiseOnAMainWindowOnly()
    {
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        show(window);
        const auto graysInARow = [&] {
            const QImage picture = pictureOf(window.titleBarView());
            QSet<int> grays;
            for (int x = 100; x < 200; ++x)
                grays << picture.pixelColor(x, 30).red();
            return grays.size();
        };
        QVERIFY(graysInARow() > 3);
        QWidget stranger;
        stranger.show();
        stranger.activateWindow();
        QTRY_VERIFY(!window.isMainWindow());
        QCOMPARE(graysInARow(), 1);
    }

    void drawsTheTitleOfAnInactiveWindowInItsOwnColors()
    {
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        window.setShowsTitle(true);
        window.setTitle(u"MMMM"_s);
        window.setTitleTextColor(Qt::blue);
        window.setTitleTextShadow(TextShadow{Qt::yellow, QPointF(0, 10)});
        window.setInactiveTitleTextColor(Qt::red);
        window.setInactiveTitleTextShadow(TextShadow{Qt::green, QPointF(0, 10)});
        show(window);
        const auto has = [&](const QColor &color) {
            const QImage picture = pictureOf(window.titleBarView());
            for (int y = 1; y < 58; ++y) {
                for (int x = 200; x < 400; ++x) {
                    const QColor pixel = picture.pixelColor(x, y);
                    if (qAbs(pixel.red() - color.red()) + qAbs(pixel.green() - color.green()) +
                            qAbs(pixel.blue() - color.blue()) <
                        60)
                        return true;
                }
            }
            return false;
        };
        QVERIFY(has(Qt::blue) && has(Qt::yellow) && !has(Qt::red) && !has(Qt::green));
        QWidget stranger;
        stranger.show();
        stranger.activateWindow();
        QTRY_VERIFY(!window.isMainWindow());
        QVERIFY(!has(Qt::blue) && !has(Qt::yellow) && has(Qt::red) && has(Qt::green));
    }

    void drawsTheTitleBar_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<bool>("main");
        for (const int scale : {1, 2}) {
            QTest::addRow("main, scale %d", scale) << qreal(scale) << true;
            QTest::addRow("not main, scale %d", scale) << qreal(scale) << false;
        }
    }
    void drawsTheTitleBar()
    {
        QFETCH(qreal, scale);
        QFETCH(bool, main);
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        show(window);
        QWidget stranger;
        if (!main) {
            stranger.show();
            stranger.activateWindow();
            QTRY_VERIFY(!window.isMainWindow());
        }
        const QImage picture = pictureOf(window.titleBarView(), scale);
        const auto grayAt = [&](qreal y) { return picture.pixelColor(QPoint(300 * scale, qFloor(y * scale))).red(); };
        const TitleBarGrays grays = titleBarGrays(PlatformGeneration::Newer, main);
        // The noise over a main window's bar shifts a gray by a tenth of its distance to black or white at most.
        const int tolerance = main ? 26 : 2;
        QVERIFY(qAbs(grayAt(3) - qRound(grays.gradientTop * 255)) <= tolerance + 3);
        QVERIFY(qAbs(grayAt(30) - qRound((grays.gradientTop + grays.gradientBottom) / 2 * 255)) <= tolerance + 1);
        QVERIFY(qAbs(grayAt(57) - qRound(grays.gradientBottom * 255)) <= tolerance + 3);
        QCOMPARE(grayAt(59.5), qRound(grays.baselineSeparator * 255));
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0); // a round upper corner
        QCOMPARE(picture.pixelColor(0, picture.height() - 1).alpha(), 255);

        window.setShowsBaselineSeparator(false);
        const QColor below = pictureOf(window.titleBarView(), scale).pixelColor(300, picture.height() - 1);
        QVERIFY(below.red() > qRound(grays.baselineSeparator * 255));
    }

    void drawsTheGivenColors()
    {
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        window.setTitleBarStartColor(Qt::red);
        window.setTitleBarEndColor(Qt::red);
        window.setInactiveTitleBarStartColor(Qt::green);
        window.setInactiveTitleBarEndColor(Qt::green);
        window.setBaselineSeparatorColor(Qt::yellow);
        window.setInactiveBaselineSeparatorColor(Qt::cyan);
        show(window);
        QVERIFY(pictureOf(window.titleBarView()).pixelColor(300, 30).red() > 225);
        QCOMPARE(pictureOf(window.titleBarView()).pixelColor(300, 59), QColor(Qt::yellow));
        QWidget stranger;
        stranger.show();
        stranger.activateWindow();
        QTRY_VERIFY(!window.isMainWindow());
        QCOMPARE(pictureOf(window.titleBarView()).pixelColor(300, 30), QColor(Qt::green));
        QCOMPARE(pictureOf(window.titleBarView()).pixelColor(300, 59), QColor(Qt::cyan));
        // In full screen the bar is black instead of the gradient, with everything else on top.
        window.showFullScreen();
        const QImage picture = pictureOf(window.titleBarView());
        QVERIFY(picture.pixelColor(300, 30).red() <= (window.isMainWindow() ? 26 : 0));
        QVERIFY(picture.pixelColor(300, 0).red() >= 25);
        QCOMPARE(picture.pixelColor(300, 59), QColor(window.isMainWindow() ? Qt::yellow : Qt::cyan));
        window.setShowsBaselineSeparator(false);
        QVERIFY(pictureOf(window.titleBarView()).pixelColor(300, 59).red() <= 26);
    }

    void drawsAnewWhatChangedSinceItWasDrawn_data()
    {
        using Change = std::function<void(INAppStoreWindow &)>;
        QTest::addColumn<Change>("change");
        QTest::addColumn<qreal>("scale");
        const auto row = [](const char *what, const Change &change, qreal scale = 1) {
            QTest::newRow(what) << change << scale;
        };
        row("the upper color", [](auto &window) { window.setTitleBarStartColor(Qt::red); });
        row("the lower color", [](auto &window) { window.setTitleBarEndColor(Qt::red); });
        row("no colors any more", [](auto &window) {
            window.setTitleBarStartColor({});
            window.setTitleBarEndColor({});
        });
        row("the height", [](auto &window) { window.setTitleBarHeight(80); });
        row("the width", [](auto &window) { window.resize(500, 400); });
        row("full screen", [](auto &window) { window.showFullScreen(); });
        row(
            "the scale", [](auto &) {}, 2);
        row(
            "a scale between", [](auto &) {}, 1.5);
        row(
            "the scale and the color", [](auto &window) { window.setTitleBarStartColor(Qt::red); }, 2);
    }
    void drawsAnewWhatChangedSinceItWasDrawn()
    {
        QFETCH(std::function<void(INAppStoreWindow &)>, change);
        QFETCH(qreal, scale);
        const auto prepared = [](INAppStoreWindow &window) {
            window.setTitleBarHeight(60);
            window.setTitleBarStartColor(Qt::blue);
            window.setTitleBarEndColor(Qt::cyan);
            show(window);
        };
        INAppStoreWindow fresh;
        prepared(fresh);
        change(fresh);
        const QImage expected = pictureOf(fresh.titleBarView(), scale);
        fresh.close();
        INAppStoreWindow drawn;
        prepared(drawn);
        const QImage before = pictureOf(drawn.titleBarView());
        change(drawn);
        const QImage after = pictureOf(drawn.titleBarView(), scale);
        QVERIFY(after != before);
        QCOMPARE(after, expected);
    }

    void drawsThroughTheBlock()
    {
        INAppStoreWindow window;
        show(window);
        bool drawnAsMain = false;
        QRectF drawingRect;
        window.setTitleBarDrawingBlock(
            [&](QPainter *painter, bool asMain, const QRectF &rect, const QPainterPath &clippingPath) {
                drawnAsMain = asMain;
                drawingRect = rect;
                painter->fillPath(clippingPath, Qt::magenta);
            });
        const QImage picture = pictureOf(window.titleBarView());
        QVERIFY(drawnAsMain);
        QCOMPARE(drawingRect, QRectF(0, 0, 600, window.titleBarHeight()));
        QCOMPARE(picture.pixelColor(300, 5), QColor(Qt::magenta));
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
    }

    void drawsTheTitleWhereItIsShown()
    {
        INAppStoreWindow window;
        window.setTitleBarHeight(60);
        window.setTitleTextColor(Qt::blue);
        window.setTitle(u"MMMM"_s);
        show(window);
        const auto bluePixelsIn = [&](const QRect &area) {
            const QImage picture = pictureOf(window.titleBarView());
            int count = 0;
            for (int y = area.top(); y <= area.bottom(); ++y) {
                for (int x = area.left(); x <= area.right(); ++x)
                    count += picture.pixelColor(x, y).blue() - picture.pixelColor(x, y).red() > 100 ? 1 : 0;
            }
            return count;
        };
        const int standard = qRound(INAppStoreWindow::minimumTitleBarHeight());
        const QRect upper(0, 0, 600, standard);
        const QRect whole(0, 0, 600, 60);
        QCOMPARE(bluePixelsIn(whole), 0);
        window.setShowsTitle(true);
        QVERIFY(bluePixelsIn(upper) > 20);
        QCOMPARE(bluePixelsIn(whole), bluePixelsIn(upper));
        window.setVerticallyCenterTitle(true);
        QVERIFY(bluePixelsIn(QRect(250, 20, 100, 20)) > 20);
        QCOMPARE(bluePixelsIn(whole), bluePixelsIn(QRect(250, 20, 100, 20)));
        window.showFullScreen();
        QCOMPARE(bluePixelsIn(whole), 0);
        window.setShowsTitleInFullscreen(true);
        QVERIFY(bluePixelsIn(QRect(0, 0, window.width(), 60)) > 20);
    }

    void isSeenOnWhite()
    {
        INAppStoreWindow window;
        window.setBackgroundColor(Qt::white);
        auto *content = new QWidget;
        content->setAutoFillBackground(true);
        content->setPalette(Qt::white);
        window.setContentView(content);
        show(window);
        const QImage picture = window.grab().toImage();
        for (const QPoint &edge : {QPoint(0, 200), QPoint(599, 200), QPoint(300, 399), QPoint(0, 399)})
            QVERIFY(picture.pixelColor(edge).red() < 200);
        QCOMPARE(picture.pixelColor(1, 200), QColor(Qt::white));
        window.showFullScreen();
        QCOMPARE(window.grab().toImage().pixelColor(0, 200), QColor(Qt::white));
    }
};

QTEST_MAIN(TitleBarDrawingTest)
#include "TitleBarDrawingTest.moc"
