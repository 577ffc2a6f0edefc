// SPDX-License-Identifier: MIT
#include "widgets/style/SlimScrollBars.h"
#include "widgets/style/Palette.h"

#include <QImage>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class SlimScrollBarsTest : public QObject
{
    Q_OBJECT

private:
    SlimScrollBars m_style{u"fusion"_s};

    std::unique_ptr<QScrollBar> bar(int maximum, int page, int value, Qt::Orientation orientation = Qt::Vertical) const
    {
        auto made = std::make_unique<QScrollBar>(orientation);
        made->setStyle(const_cast<SlimScrollBars *>(&m_style));
        made->setRange(0, maximum);
        made->setPageStep(page);
        made->setValue(value);
        if (orientation == Qt::Vertical)
            made->resize(made->sizeHint().width(), 200);
        else
            made->resize(200, made->sizeHint().height());
        return made;
    }
    static QImage pictureOf(QScrollBar &bar)
    {
        QImage picture(bar.size(), QImage::Format_ARGB32);
        picture.fill(Qt::transparent);
        bar.render(&picture, {}, {}, QWidget::DrawChildren);
        return picture;
    }

private slots:
    void drawsAThumbAlone_data()
    {
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");

        QTest::newRow("at the beginning") << 100 << 100 << 0 << 0 << 99;
        QTest::newRow("at the end") << 100 << 100 << 100 << 100 << 199;
        QTest::newRow("in the middle") << 100 << 100 << 50 << 50 << 149;
        QTest::newRow("never shorter than can be gripped") << 1'000'000 << 100 << 0 << 0 << 23;
        QTest::newRow("nothing to scroll") << 0 << 100 << 0 << -1 << -1;
    }
    void drawsAThumbAlone()
    {
        QFETCH(int, maximum);
        QFETCH(int, page);
        QFETCH(int, value);
        const auto made = bar(maximum, page, value);
        QCOMPARE(made->width(), SlimScrollBars::extent);
        const QImage picture = pictureOf(*made);
        int first = -1;
        int last = -1;
        for (int y = 0; y < picture.height(); ++y) {
            QCOMPARE(qAlpha(picture.pixel(SlimScrollBars::extent - SlimScrollBars::thumbThickness - 2, y)), 0);
            if (qAlpha(picture.pixel(SlimScrollBars::extent - SlimScrollBars::thumbThickness / 2 - 1, y)) == 0)
                continue;
            first = first < 0 ? y : first;
            last = y;
        }
        QTEST(first, "first");
        QTEST(last, "last");
    }

    void liesAtTheOuterEdge_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<int>("inked");
        QTest::newRow("left to right") << Qt::LeftToRight << SlimScrollBars::extent - 2;
        QTest::newRow("right to left") << Qt::RightToLeft << 1;
    }
    void liesAtTheOuterEdge()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(int, inked);
        const auto made = bar(100, 100, 0);
        made->setLayoutDirection(direction);
        const QImage picture = pictureOf(*made);
        QVERIFY(qAlpha(picture.pixel(inked, 50)) > 0);
        QCOMPARE(qAlpha(picture.pixel(SlimScrollBars::extent - 1 - inked, 50)), 0);
    }

    void worksByMouse()
    {
        const auto made = bar(100, 100, 0);
        made->show();
        QTest::mouseClick(made.get(), Qt::LeftButton, {}, QPoint(8, 190));
        QVERIFY2(made->value() > 0, "a click beside the thumb turns a page");
        made->setValue(0);
        QTest::mousePress(made.get(), Qt::LeftButton, {}, QPoint(8, 50));
        QTest::mouseMove(made.get(), QPoint(8, 80));
        QTest::mouseRelease(made.get(), Qt::LeftButton, {}, QPoint(8, 80));
        QCOMPARE(made->value(), 30);
    }

    void liesDownToo()
    {
        const auto made = bar(100, 100, 0, Qt::Horizontal);
        QCOMPARE(made->height(), SlimScrollBars::extent);
        const QImage picture = pictureOf(*made);
        QVERIFY(qAlpha(picture.pixel(50, SlimScrollBars::extent - 2)) > 0);
        QCOMPARE(qAlpha(picture.pixel(50, 1)), 0);
        QCOMPARE(qAlpha(picture.pixel(150, SlimScrollBars::extent - 2)), 0);
    }
};

QTEST_MAIN(SlimScrollBarsTest)
#include "SlimScrollBarsTest.moc"
