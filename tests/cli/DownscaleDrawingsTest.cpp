// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/pictures/TestPictures.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

const QByteArray drawing = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"25\" height=\"13\">"
                           "<path fill=\"#d33\" d=\"M0 0h25v13h-25z\"/></svg>";

} // namespace

class DownscaleDrawingsTest : public QObject
{
    Q_OBJECT

private slots:
    void drawings_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QMap<QString, QSize>>("written");
        using Files = QMap<QString, QSize>;
        QTest::newRow("ios") << u"ios"_s << QStringList()
                             << Files{{u"d.png"_s, {25, 13}}, {u"d@2x.png"_s, {50, 26}}, {u"d@3x.png"_s, {75, 39}}};
        QTest::newRow("android") << u"android"_s << QStringList()
                                 << Files{{u"drawable-hdpi/d.png"_s, {38, 20}},
                                          {u"drawable-mdpi/d.png"_s, {25, 13}},
                                          {u"drawable-xhdpi/d.png"_s, {50, 26}},
                                          {u"drawable-xxhdpi/d.png"_s, {75, 39}},
                                          {u"drawable-xxxhdpi/d.png"_s, {100, 52}}};
        QTest::newRow("flutter") << u"flutter"_s << QStringList()
                                 << Files{{u"2.0x/d.png"_s, {50, 26}},
                                          {u"3.0x/d.png"_s, {75, 39}},
                                          {u"4.0x/d.png"_s, {100, 52}},
                                          {u"d.png"_s, {25, 13}}};
        QTest::newRow("densities as in names") << u"flutter"_s << QStringList{u"--to-scales"_s, u"@2x,3.0x"_s}
                                               << Files{{u"2.0x/d.png"_s, {50, 26}}, {u"3.0x/d.png"_s, {75, 39}}};
        QTest::newRow("react native, some") << u"react-native"_s << QStringList{u"--to-scales"_s, u"1.5x,1x"_s}
                                            << Files{{u"d.png"_s, {25, 13}}, {u"d@1.5x.png"_s, {38, 20}}};
        QTest::newRow("web, as webp") << u"web"_s << QStringList{u"--to-scales"_s, u"2x"_s, u"--format"_s, u"webp"_s}
                                      << Files{{u"d@2x.webp"_s, {50, 26}}};
    }
    void drawings()
    {
        QFETCH(QString, layout);
        QFETCH(QStringList, options);
        using Files = QMap<QString, QSize>;
        QFETCH(Files, written);
        const QTemporaryDir folder;
        const auto at = [&folder](const QString &name) { return folder.filePath(name); };
        // A picture beside the drawing is no source.
        QVERIFY(putFile(at(u"art/a@3x.png"_s), pictureFile(testPicture(40, 31))));
        QVERIFY(putFile(at(u"art/d.svg"_s), drawing));
        const LumoraRun run = runLumora(QStringList{u"downscale"_s, at(u"art"_s), u"--from"_s, u"svg"_s, u"--layout"_s,
                                                    layout, u"--out"_s, at(u"out"_s)} +
                                        options);
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(filesBelowFolder(at(u"out"_s)), written.keys());
        for (auto file = written.begin(); file != written.end(); ++file) {
            const QImage picture(at(u"out/"_s + file.key()));
            QCOMPARE(picture.size(), file.value());
            QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() / 2), QColor(0xdd, 0x33, 0x33));
        }
    }

    void drawingsThatAreNone_data()
    {
        QTest::addColumn<QByteArray>("content"); ///< no drawing where it is empty
        QTest::addColumn<QByteArray>("named");
        QTest::newRow("none") << QByteArray()
                              << QByteArray("no picture to scale down from; use PNG or WebP files that");
        QTest::newRow("no document") << QByteArray("bad") << QByteArray("d.svg: could not be read");
        QTest::newRow("a script") << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\">"
                                                "<script>1</script></svg>")
                                  << QByteArray("d.svg: ");
        QTest::newRow("a picture from outside")
            << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\">"
                          "<image href=\"http://a.example/b.png\" width=\"9\" height=\"9\"/></svg>")
            << QByteArray("d.svg: ");
        QTest::newRow("a huge size") << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"90000\" "
                                                   "height=\"90000\"><path d=\"M0 0h9v9z\"/></svg>")
                                     << QByteArray("d.svg: ");
    }
    void drawingsThatAreNone()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, named);
        const QTemporaryDir folder;
        const auto at = [&folder](const QString &name) { return folder.filePath(name); };
        QVERIFY(putFile(at(u"art/a@3x.png"_s), pictureFile(testPicture(40, 31))));
        if (!content.isEmpty())
            QVERIFY(putFile(at(u"art/d.svg"_s), content));
        const LumoraRun run =
            runLumora({u"downscale"_s, at(u"art"_s), u"--from"_s, u"svg"_s, u"--out"_s, at(u"out"_s)});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.contains(named), run.err);
        QCOMPARE(filesBelowFolder(at(u"out"_s)), QStringList());
    }
};

QTEST_GUILESS_MAIN(DownscaleDrawingsTest)
#include "DownscaleDrawingsTest.moc"
