// SPDX-License-Identifier: MIT
#include "placeholders/PlaceholderSizes.h"

#include <QSet>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class PlaceholderSizesTest : public QObject
{
    Q_OBJECT

private slots:
    void setsNameTheirFilesInOrder_data()
    {
        QTest::addColumn<PlaceholderSet>("set");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("iOS") << PlaceholderSet::Ios
                             << QStringList{u"placeholder_1024x1024.png"_s, u"placeholder_1136x640.png"_s,
                                            u"placeholder_640x1136.png"_s,  u"placeholder_960x640.png"_s,
                                            u"placeholder_640x960.png"_s,   u"placeholder_480x320.png"_s,
                                            u"placeholder_320x480.png"_s,   u"placeholder_1024x768.png"_s,
                                            u"placeholder_768x1024.png"_s};
        QTest::newRow("Mac") << PlaceholderSet::Mac
                             << QStringList{u"placeholder_1024x1024.png"_s, u"placeholder_512x512.png"_s,
                                            u"placeholder_1440x900.png"_s, u"placeholder_1280x800.png"_s};
    }
    void setsNameTheirFilesInOrder()
    {
        QFETCH(PlaceholderSet, set);
        QStringList names;
        for (const QSize size : placeholderSizes(set))
            names << placeholderFileName(size);
        QTEST(names, "names");
        QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
    }

    void customEdgesAreBounded_data()
    {
        QTest::addColumn<int>("edge");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("far below") << -9999 << false;
        QTest::newRow("negative") << -1 << false;
        QTest::newRow("zero") << 0 << false;
        QTest::newRow("shortest") << 1 << true;
        QTest::newRow("longest") << 9999 << true;
        QTest::newRow("too long by one") << 10000 << false;
        QTest::newRow("beyond all") << std::numeric_limits<int>::max() << false;
    }
    void customEdgesAreBounded()
    {
        QFETCH(int, edge);
        QTEST(isPlaceholderEdge(edge), "accepted");
    }
};

QTEST_APPLESS_MAIN(PlaceholderSizesTest)
#include "PlaceholderSizesTest.moc"
