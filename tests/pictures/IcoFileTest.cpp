// SPDX-License-Identifier: MIT
#include "pictures/ico/IcoReader.h"
#include "pictures/ico/IcoWriter.h"
#include "pictures/pixels/PixelFormat.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/pictures/TestPictures.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <array>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

constexpr std::array<int, 5> edges = {16, 24, 33, 48, 256};

QImage pictureOf(int edge)
{
    return resampled(premultiplied(testPicture(256, 256)), QSize(edge, edge));
}

QByteArray iconOf(std::span<const int> sizes)
{
    std::vector<IcoPicture> pictures;
    for (const int edge : sizes)
        pictures.push_back({pictureOf(edge), edge == 256 ? encodedPng(pictureOf(edge)) : QByteArray()});
    return icoFile(pictures);
}

} // namespace

class IcoFileTest : public QObject
{
    Q_OBJECT

private slots:
    void entries();
    void anotherProgramReadsEveryPicture();
    void theMaskHidesOnlyWhatIsTransparent();
    void damaged_data();
    void damaged();
};

void IcoFileTest::entries()
{
    const auto entries = readIcoEntries(iconOf(edges));
    QVERIFY(entries.has_value());
    QCOMPARE(entries->size(), edges.size());
    for (std::size_t index = 0; index < edges.size(); ++index) {
        QCOMPARE((*entries)[index].size, QSize(edges[index], edges[index]));
        QCOMPARE((*entries)[index].png, edges[index] == 256);
        QCOMPARE((*entries)[index].bits, edges[index] == 256 ? 0 : 32);
    }
}

void IcoFileTest::anotherProgramReadsEveryPicture()
{
    const QTemporaryDir folder;
    QVERIFY(putFile(folder.filePath(u"a.ico"_s), iconOf(edges)));
    for (std::size_t index = 0; index < edges.size(); ++index) {
        const QString out = folder.filePath(u"out.png"_s);
        QProcess tool;
        tool.start(u"icotool"_s,
                   {u"-x"_s, u"-i"_s, QString::number(index + 1), u"-o"_s, out, folder.filePath(u"a.ico"_s)});
        QVERIFY2(tool.waitForFinished() && tool.exitCode() == 0, tool.readAllStandardError());
        const QImage picture = QImage(out).convertToFormat(QImage::Format_RGBA8888);
        const QImage wanted =
            QImage::fromData(encodedPng(pictureOf(edges[index])), "png").convertToFormat(QImage::Format_RGBA8888);
        QCOMPARE(picture.size(), wanted.size());
        for (int y = 0; y < wanted.height(); ++y) {
            for (int x = 0; x < wanted.width(); ++x) {
                QCOMPARE(picture.pixelColor(x, y).alpha(), wanted.pixelColor(x, y).alpha());
                if (wanted.pixelColor(x, y).alpha() > 0)
                    QCOMPARE(picture.pixelColor(x, y), wanted.pixelColor(x, y));
            }
        }
    }
}

/// Readers that do not know alpha use the mask alone; the reader above ignores it.
void IcoFileTest::theMaskHidesOnlyWhatIsTransparent()
{
    constexpr int edge = 33;
    constexpr qsizetype maskRowBytes = 8;
    QImage picture(edge, edge, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setPixelColor(9, 0, QColor(10, 20, 30));
    picture.setPixelColor(32, 4, QColor(200, 100, 50, 1));
    const QByteArray file = icoFile(std::array{IcoPicture{picture, {}}});
    const QByteArray mask = file.last(edge * maskRowBytes);
    for (int y = 0; y < edge; ++y) {
        // The lowest row comes first.
        const QByteArray row = mask.sliced((edge - 1 - y) * maskRowBytes, maskRowBytes);
        for (int x = 0; x < edge; ++x) {
            const bool hidden = (static_cast<uchar>(row[x / 8]) >> (7 - x % 8) & 1) != 0;
            const bool visible = (x == 9 && y == 0) || (x == 32 && y == 4);
            QVERIFY2(hidden == !visible, qPrintable(u"%1, %2"_s.arg(x).arg(y)));
        }
    }
}

void IcoFileTest::damaged_data()
{
    QTest::addColumn<QByteArray>("file");
    const QByteArray sound = iconOf(std::array{16, 256});
    const auto with = [&sound](qsizetype at, char byte) {
        QByteArray file = sound;
        file[at] = byte;
        return file;
    };
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a cursor") << with(2, 2);
    QTest::newRow("no picture") << with(4, 0);
    QTest::newRow("more pictures than entries") << with(5, 100);
    QTest::newRow("another size") << with(6, 17);
    QTest::newRow("beyond the end") << with(21, 100);
    QTest::newRow("longer than the file") << with(17, 100);
    QTest::newRow("cut") << sound.chopped(1);
    QTest::newRow("bitmap cut") << iconOf(std::array{48}).first(400);
}

void IcoFileTest::damaged()
{
    QFETCH(QByteArray, file);
    QVERIFY(!readIcoEntries(file));
}

QTEST_APPLESS_MAIN(IcoFileTest)

#include "IcoFileTest.moc"
