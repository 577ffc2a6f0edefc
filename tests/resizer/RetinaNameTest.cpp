// SPDX-License-Identifier: MIT
#include "resizer/RetinaName.h"

#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class RetinaNameTest : public QObject
{
    Q_OBJECT

private slots:
    void acceptsMarkedPngFiles_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("@2x") << u"/art/button@2x.png"_s << true;
        QTest::newRow("@2X") << u"/art/button@2X.png"_s << true;
        QTest::newRow("-hd") << u"/art/button-hd.png"_s << true;
        QTest::newRow("-HD") << u"/art/button-HD.png"_s << true;
        QTest::newRow("mixed case -Hd") << u"/art/button-Hd.png"_s << false;
        QTest::newRow("mixed case -hD") << u"/art/button-hD.png"_s << false;
        QTest::newRow("triple resolution") << u"/art/button@3x.png"_s << false;
        QTest::newRow("no marker") << u"/art/button.png"_s << false;
        QTest::newRow("marker in the middle of the name") << u"/art/but@2xton.png"_s << true;
        QTest::newRow("marker in a folder") << u"/art-hd/button.png"_s << true;
        QTest::newRow("marker in the first folder") << u"/@2x/a/b/button.png"_s << true;
        QTest::newRow("marker after the last dot") << u"/art/button.png@2x"_s << false;
        QTest::newRow("upper-case extension") << u"/art/icon@2x.PNG"_s << false;
        QTest::newRow("mixed-case extension") << u"/art/icon@2x.Png"_s << false;
        QTest::newRow("another format") << u"/art/icon@2x.jpg"_s << false;
        QTest::newRow("no extension") << u"/art/icon@2x"_s << false;
        QTest::newRow("extension of the folder only") << u"/art@2x.png/icon"_s << false;
        QTest::newRow("only the last extension counts") << u"/art/icon@2x.png.gz"_s << false;
        QTest::newRow("several dots") << u"/art/icon.dark@2x.png"_s << true;
        QTest::newRow("hidden name without extension") << u"/art-hd/.png"_s << false;
        QTest::newRow("letters beyond Latin") << u"/画像/ボタン@2x.png"_s << true;
        QTest::newRow("empty") << QString() << false;
    }
    void acceptsMarkedPngFiles()
    {
        QFETCH(QString, path);
        QTEST(isDoubleResolution(path), "accepted");
    }

    void removesEveryMarkerFromTheName_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("name");
        QTest::newRow("@2x") << u"/art/button@2x.png"_s << u"button.png"_s;
        QTest::newRow("@2X") << u"/art/button@2X.png"_s << u"button.png"_s;
        QTest::newRow("-hd") << u"/art/button-hd.png"_s << u"button.png"_s;
        QTest::newRow("-HD") << u"/art/button-HD.png"_s << u"button.png"_s;
        QTest::newRow("two markers") << u"/art/logo-hd@2x.png"_s << u"logo.png"_s;
        QTest::newRow("the same marker twice") << u"/art/a@2xb@2x.png"_s << u"ab.png"_s;
        QTest::newRow("all four") << u"/art/a@2x@2X-hd-HD.png"_s << u"a.png"_s;
        QTest::newRow("marker in the folder only") << u"/art-hd/button.png"_s << u"button.png"_s;
        QTest::newRow("one removal makes a marker of a later turn") << u"/art/a-@2xhd.png"_s << u"a.png"_s;
        QTest::newRow("one removal makes a marker of an earlier turn") << u"/art/a@-hd2x.png"_s << u"a@2x.png"_s;
        QTest::newRow("mixed case stays") << u"/art-hd/a-Hd.png"_s << u"a-Hd.png"_s;
        QTest::newRow("nothing but a marker") << u"/art/@2x.png"_s << u".png"_s;
    }
    void removesEveryMarkerFromTheName()
    {
        QFETCH(QString, path);
        QTEST(singleResolutionName(path), "name");
    }

    void halvesRoundingDown_data()
    {
        QTest::addColumn<QSize>("pixels");
        QTest::addColumn<QSize>("half");
        QTest::newRow("even") << QSize(200, 80) << QSize(100, 40);
        QTest::newRow("odd") << QSize(57, 57) << QSize(28, 28);
        QTest::newRow("odd both") << QSize(101, 75) << QSize(50, 37);
        QTest::newRow("two pixels") << QSize(2, 3) << QSize(1, 1);
        QTest::newRow("a single pixel stays one") << QSize(1, 1) << QSize(1, 1);
        QTest::newRow("an upright line") << QSize(1, 155) << QSize(1, 77);
        QTest::newRow("a lying line") << QSize(100, 1) << QSize(50, 1);
        // 16777219 is not a single-precision number; the nearest is 16777220.
        QTest::newRow("beyond single precision") << QSize(16777219, 2) << QSize(8388610, 1);
    }
    void halvesRoundingDown()
    {
        QFETCH(QSize, pixels);
        QTEST(halfSize(pixels), "half");
    }
};

QTEST_APPLESS_MAIN(RetinaNameTest)
#include "RetinaNameTest.moc"
