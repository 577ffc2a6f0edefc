// SPDX-License-Identifier: MIT
#include "pictures/png/PngEncoder.h"

#include "PngAnatomy.h"
#include "pictures/pixels/PixelFormat.h"
#include "pictures/png/PngRows.h"
#include "pictures/png/PngSection.h"
#include "tests/pictures/TestPictures.h"

#include <QColorSpace>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <functional>
#include <new>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QImage noise(QSize size, QImage::Format format, quint32 seed = 1)
{
    QRandomGenerator random(seed);
    QImage picture(size, format);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, random.generate());
    }
    return picture;
}

QImage transparent(QSize size)
{
    QImage picture(size, QImage::Format_RGBA8888);
    picture.fill(Qt::transparent);
    return picture;
}

QImage gradient(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 255 / size.width(), y * 255 / size.height(), (x ^ y) & 255));
    }
    return picture;
}

/// White, with soft shades in the upper part that has this share of the rows.
QImage drawing(double shadedShare)
{
    QImage picture(128, 128, QImage::Format_RGB32);
    picture.fill(Qt::white);
    for (int y = 0; y < shadedShare * picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * y / 64, (x * x + y * y) / 128, 255 - x * y / 64));
    }
    return picture;
}

/// Rows whose lower half cannot be read for want of memory.
class RowsWithoutMemory final : public PngRows
{
public:
    explicit RowsWithoutMemory(QSize size) : m_size(size) {}

    QSize size() const override { return m_size; }
    void readRow(int row, std::span<std::uint8_t> rgba) const override
    {
        if (row >= m_size.height() / 2)
            throw std::bad_alloc();
        std::fill(rgba.begin(), rgba.end(), std::uint8_t{255});
    }

private:
    QSize m_size;
};

} // namespace

Q_DECLARE_METATYPE(std::function<Result<QByteArray>(const QString &name)>)

class PngEncoderTest : public QObject
{
    Q_OBJECT

private slots:
    void readsBackAsItWas_data();
    void readsBackAsItWas();
    void holdsTheseChunksOnly();
    void isMadeOfSeveralSectionsWhereLarge();
    void sameBytesAgain();
    void quickFiltersWhatShrinksByIt_data();
    void quickFiltersWhatShrinksByIt();
    void quickReadsBackAsItWas_data();
    void quickReadsBackAsItWas();
    void sameBytesFromRowsOnAnyNumberOfThreads_data();
    void sameBytesFromRowsOnAnyNumberOfThreads();
    void opaqueHasNoAlphaChannel_data();
    void opaqueHasNoAlphaChannel();
    void opaqueShowsBlackThroughTransparency();
    void failsWithItsReason_data();
    void failsWithItsReason();
};

void PngEncoderTest::readsBackAsItWas_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::newRow("one pixel") << noise({1, 1}, QImage::Format_ARGB32);
    QTest::newRow("29 pixels, alpha noise") << noise({29, 29}, QImage::Format_ARGB32);
    QTest::newRow("opaque becomes RGBA too") << gradient({57, 57});
    QTest::newRow("palette") << gradient({64, 64}).convertToFormat(QImage::Format_Indexed8);
    QTest::newRow("grey") << gradient({64, 64}).convertToFormat(QImage::Format_Grayscale8);
    QTest::newRow("wide") << gradient({3000, 1});
    QTest::newRow("tall, more sections than fit") << gradient({1, 3000});
    QTest::newRow("several sections, noise") << noise({1024, 1024}, QImage::Format_ARGB32);
    QTest::newRow("several sections, gradient") << gradient({1024, 1024});
    QTest::newRow("several sections, one color") << QImage(QSize(1024, 1024), QImage::Format_RGB32);
    QTest::newRow("rows that repeat") << gradient({300, 1}).scaled(300, 40);
    QTest::newRow("transparent black rows that repeat") << transparent({300, 40});
    QTest::newRow("odd rows per section") << gradient({1000, 1013});
}

void PngEncoderTest::readsBackAsItWas()
{
    QFETCH(QImage, picture);
    if (picture.format() == QImage::Format_RGB32 && picture.pixel(0, 0) == 0)
        picture.fill(Qt::red);
    const QByteArray file = encodedPng(picture);
    QImage back;
    QVERIFY(back.loadFromData(file, "png"));
    QCOMPARE(back.size(), picture.size());
    QVERIFY(back.hasAlphaChannel());
    QCOMPARE(back.colorSpace(), QColorSpace(QColorSpace::SRgb));
    back.setColorSpace(picture.colorSpace());
    QCOMPARE(premultiplied(back), premultiplied(picture));
    // zlib is stricter than the decoder: no data may be missing or left over.
    QCOMPARE(inflatedPixels(file).size(), (picture.width() * 4 + 1) * qsizetype{picture.height()});
}

void PngEncoderTest::holdsTheseChunksOnly()
{
    const QList<PngChunk> chunks = pngChunks(encodedPng(gradient({57, 57})));
    QByteArrayList types;
    for (const PngChunk &chunk : chunks)
        types << chunk.type;
    QCOMPARE(types, (QByteArrayList{"IHDR", "sRGB", "IDAT", "IEND"}));
    QCOMPARE(chunks[0].content, QByteArray("\0\0\0\x39\0\0\0\x39\x08\x06\0\0\0", 13));
    QCOMPARE(chunks[1].content, QByteArray("\0", 1));
}

void PngEncoderTest::isMadeOfSeveralSectionsWhereLarge()
{
    QVERIFY(pngSectionCount({1024, 1024}) >= 4);
    QCOMPARE(pngSectionCount({57, 57}), 1);
    QCOMPARE(pngSectionCount({1, 1}), 1);
}

void PngEncoderTest::sameBytesAgain()
{
    const QImage picture = noise({600, 600}, QImage::Format_ARGB32);
    QCOMPARE(encodedPng(picture), encodedPng(picture));
    QCOMPARE(encodedPng(premultiplied(picture)), encodedPng(picture));
}

void PngEncoderTest::sameBytesFromRowsOnAnyNumberOfThreads_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::addColumn<int>("threads");
    for (const int threads : {0, 1, 2, 7}) {
        QTest::addRow("one section, %d threads", threads) << gradient({57, 57}) << threads;
        QTest::addRow("several sections, %d threads", threads) << noise({600, 600}, QImage::Format_ARGB32) << threads;
    }
}

void PngEncoderTest::sameBytesFromRowsOnAnyNumberOfThreads()
{
    QFETCH(QImage, picture);
    QFETCH(int, threads);
    QCOMPARE(encodePng(ImageRows(straightened(picture)), threads, {}).value(), encodedPng(picture));
}

void PngEncoderTest::opaqueHasNoAlphaChannel_data()
{
    readsBackAsItWas_data();
}

void PngEncoderTest::opaqueHasNoAlphaChannel()
{
    QFETCH(QImage, picture);
    // Without its alpha the picture shows its colors.
    picture = picture.convertToFormat(QImage::Format_RGB32);
    const QByteArray file = encodeOpaquePng(picture, 1, {}).value();
    const QList<PngChunk> chunks = pngChunks(file);
    QByteArrayList types;
    for (const PngChunk &chunk : chunks)
        types << chunk.type;
    QCOMPARE(types, (QByteArrayList{"IHDR", "sRGB", "IDAT", "IEND"}));
    QCOMPARE(chunks[0].content.sliced(8), QByteArray("\x08\x02\0\0\0", 5));
    QImage back;
    QVERIFY(back.loadFromData(file, "png"));
    QVERIFY(!back.hasAlphaChannel());
    QCOMPARE(back.colorSpace(), QColorSpace(QColorSpace::SRgb));
    back.setColorSpace(picture.colorSpace());
    QCOMPARE(back.convertToFormat(QImage::Format_RGB32), picture);
    QCOMPARE(inflatedPixels(file).size(), (picture.width() * 3 + 1) * qsizetype{picture.height()});
    for (const int threads : {0, 2, 7})
        QCOMPARE(encodeOpaquePng(picture, threads, {}).value(), file);
    QVERIFY(file.size() <= encodedPng(picture).size() + encodedPng(picture).size() / 10);
}

void PngEncoderTest::opaqueShowsBlackThroughTransparency()
{
    QImage picture(2, 1, QImage::Format_RGBA8888);
    picture.setPixelColor(0, 0, QColor(255, 255, 255, 0));
    picture.setPixelColor(1, 0, QColor(255, 255, 255, 51));
    const QImage read = QImage::fromData(encodeOpaquePng(picture, 1, {}).value(), "png");
    QCOMPARE(read.pixelColor(0, 0), QColor(0, 0, 0));
    QCOMPARE(read.pixelColor(1, 0), QColor(51, 51, 51));
}

void PngEncoderTest::quickFiltersWhatShrinksByIt_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::addColumn<bool>("isFiltered");
    QTest::newRow("a drawing with soft shades") << drawing(0.5) << true;
    QTest::newRow("a drawing with hardly any shades") << drawing(0.02) << false;
    QTest::newRow("a photograph") << drawing(1) << true;
    QImage shade(1000, 600, QImage::Format_RGBA8888);
    for (int y = 0; y < shade.height(); ++y) {
        for (int x = 0; x < shade.width(); ++x)
            shade.setPixelColor(x, y, {x % 256, x / 4, x * 7 % 256});
    }
    QTest::newRow("the same shade in every row") << shade << true;
}

void PngEncoderTest::quickFiltersWhatShrinksByIt()
{
    QFETCH(QImage, picture);
    const QByteArray rows = inflatedPixels(encodePngQuickly(picture, {}).value());
    bool isFiltered = false;
    for (int y = 0; y < picture.height(); ++y)
        isFiltered = isFiltered || rows[y * (picture.width() * qsizetype{4} + 1)] != 0;
    QTEST(isFiltered, "isFiltered");
}

void PngEncoderTest::quickReadsBackAsItWas_data()
{
    readsBackAsItWas_data();
}

void PngEncoderTest::quickReadsBackAsItWas()
{
    QFETCH(QImage, picture);
    const QByteArray file = encodePngQuickly(picture, {}).value();
    QCOMPARE(encodePngQuickly(picture, {}).value(), file);
    QImage back;
    QVERIFY(back.loadFromData(file, "png"));
    back.setColorSpace(picture.colorSpace());
    QCOMPARE(premultiplied(back), premultiplied(picture));
    QCOMPARE(inflatedPixels(file).size(), (picture.width() * 4 + 1) * qsizetype{picture.height()});
}

void PngEncoderTest::failsWithItsReason_data()
{
    using Encoding = std::function<Result<QByteArray>(const QString &name)>;
    QTest::addColumn<Encoding>("encoding");
    QTest::addColumn<FailureCode>("code");
    const auto addRow = [](const char *name, const Encoding &encoding, FailureCode code) {
        QTest::newRow(name) << encoding << code;
    };
    addRow(
        "null picture", [](const QString &name) { return encodePng(QImage(), name); }, FailureCode::InvalidValue);
    addRow(
        "null picture, quickly", [](const QString &name) { return encodePngQuickly(QImage(), name); },
        FailureCode::InvalidValue);
    addRow(
        "null picture, opaque", [](const QString &name) { return encodeOpaquePng(QImage(), 1, name); },
        FailureCode::InvalidValue);
    addRow(
        "no rows, opaque",
        [](const QString &name) {
            return encodeOpaquePng(RowsWithoutMemory({7, 0}), 1, name);
        },
        FailureCode::InvalidValue);
    addRow(
        "no memory, opaque",
        [](const QString &name) {
            return encodeOpaquePng(RowsWithoutMemory({40, 40}), 1, name);
        },
        FailureCode::TooLarge);
    addRow(
        "no rows",
        [](const QString &name) {
            return encodePng(RowsWithoutMemory({7, 0}), 1, name);
        },
        FailureCode::InvalidValue);
    addRow(
        "no memory",
        [](const QString &name) {
            return encodePng(RowsWithoutMemory({40, 40}), 1, name);
        },
        FailureCode::TooLarge);
    addRow(
        "no memory on three threads",
        [](const QString &name) {
            return encodePng(RowsWithoutMemory({1024, 1024}), 3, name);
        },
        FailureCode::TooLarge);
}

void PngEncoderTest::failsWithItsReason()
{
    QFETCH(std::function<Result<QByteArray>(const QString &name)>, encoding);
    const Result<QByteArray> file = encoding(u"mine.png"_s);
    QVERIFY(!file.ok());
    QTEST(file.failure().code, "code");
    QCOMPARE(file.failure().subject, u"mine.png"_s);
    QVERIFY(!file.failure().detail.isEmpty());
}

QTEST_GUILESS_MAIN(PngEncoderTest)
#include "PngEncoderTest.moc"
