// SPDX-License-Identifier: MIT
#include "placeholders/MiniatureLayout.h"

#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class MiniatureLayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void smallMiniaturesHaveCaptions_data()
    {
        QTest::addColumn<QList<QSize>>("pictures");
        QTest::addColumn<QSizeF>("area");
        const QList<QSize> devices{{1024, 1024}, {1136, 640}, {640, 1136}, {960, 640}, {640, 960},
                                   {480, 320},   {320, 480},  {1024, 768}, {768, 1024}};
        QTest::newRow("devices") << devices << QSizeF(203, 300);
        QTest::newRow("devices in a low area") << devices << QSizeF(203, 200);
        QTest::newRow("a strip") << QList<QSize>{{9999, 1}} << QSizeF(203, 300);
        QTest::newRow("a column") << QList<QSize>{{1, 9999}} << QSizeF(203, 300);
        QTest::newRow("a small one") << QList<QSize>{{30, 30}} << QSizeF(203, 300);
    }
    void smallMiniaturesHaveCaptions()
    {
        QFETCH(QList<QSize>, pictures);
        QFETCH(QSizeF, area);
        const CaptionRule rule{90, QSizeF(50, 12)};
        const QRectF whole(QPointF(10, 20), area);
        const QList<Miniature> miniatures = captionedMiniatures(pictures, whole, 6, rule);
        QCOMPARE(miniatures.size(), pictures.size());
        const QRectF room = whole.adjusted(-1e-6, -1e-6, 1e-6, 1e-6);
        for (qsizetype i = 0; i < miniatures.size(); ++i) {
            const Miniature &one = miniatures.at(i);
            QCOMPARE(one.caption.isNull(), one.picture.width() >= rule.readableWidth);
            QVERIFY(room.contains(one.picture));
            QVERIFY(one.caption.isNull() || room.contains(one.caption));
            QVERIFY(one.caption.isNull() || qAbs(one.caption.top() - one.picture.bottom()) < 1e-6);
            const QRectF cell = one.picture.united(one.caption);
            for (qsizetype other = 0; other < i; ++other)
                QVERIFY(!cell.intersects(miniatures.at(other).picture.united(miniatures.at(other).caption)));
        }
    }

    void edgesLieOnPixels_data()
    {
        QTest::addColumn<QRectF>("rectangle");
        QTest::addColumn<double>("scale");
        QTest::addColumn<QRectF>("snapped");
        QTest::newRow("scale 1") << QRectF(1.4, 2.6, 10.2, 5.1) << 1.0 << QRectF(1, 3, 11, 5);
        QTest::newRow("scale 2") << QRectF(1.4, 2.6, 10.2, 5.1) << 2.0 << QRectF(1.5, 2.5, 10, 5);
        QTest::newRow("a strip stays visible") << QRectF(1, 2.6, 100, 0.01) << 1.0 << QRectF(1, 3, 100, 1);
        QTest::newRow("at scale 2, too") << QRectF(1, 2.6, 100, 0.01) << 2.0 << QRectF(1, 2.5, 100, 0.5);
    }
    void edgesLieOnPixels()
    {
        QFETCH(QRectF, rectangle);
        QFETCH(double, scale);
        QTEST(onPixels(rectangle, scale), "snapped");
    }
};

QTEST_GUILESS_MAIN(MiniatureLayoutTest)
#include "MiniatureLayoutTest.moc"
