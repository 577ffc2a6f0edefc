// SPDX-License-Identifier: MIT
#include "placeholders/today/LabeledPicture.h"
#include "placeholders/today/LabeledExport.h"

#include "placeholders/LabelFont.h"

#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// The rectangle of the text's ink: around all pixels that differ from the background.
QRect inkOf(const QImage &image)
{
    QRect ink;
    const QRgb ground = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != ground)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

} // namespace

/// Placeholders with a custom text and colors, as pixels and as SVG.
class LabeledPictureTest : public QObject
{
    Q_OBJECT

private slots:
    void theTextStandsInTheMiddleAndFits_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("scale");
        QTest::addColumn<QString>("text");
        QTest::newRow("a card") << QSize(1200, 630) << 1 << u"{size}"_s;
        QTest::newRow("at twice the density") << QSize(300, 200) << 2 << u"{width} by {height}"_s;
        QTest::newRow("a narrow one") << QSize(60, 800) << 1 << u"{size}"_s;
        QTest::newRow("a low one") << QSize(800, 20) << 1 << u"{size}"_s;
        QTest::newRow("a long text") << QSize(400, 400) << 1
                                     << u"A long text that would not fit into a line at that size"_s;
        QTest::newRow("two lines") << QSize(400, 400) << 1 << u"Feature\ngraphic"_s;
    }
    void theTextStandsInTheMiddleAndFits()
    {
        QFETCH(QSize, size);
        QFETCH(int, scale);
        QFETCH(QString, text);
        const LabelFont font;
        const LabeledPicture picture({size, scale}, {text}, font);
        const QImage image = picture.toImage();
        QCOMPARE(image.size(), size * scale);
        const QRect ink = inkOf(image);
        QVERIFY(!ink.isEmpty());
        QVERIFY(ink.width() <= 0.8 * image.width() + 2 && ink.height() <= 0.8 * image.height() + 2);
        // A line's bearings differ on both sides, and its ink is not in the middle of its height.
        QVERIFY(std::abs(ink.center().x() - image.width() / 2) <= image.width() / 50 + 2);
        QVERIFY(std::abs(ink.center().y() - image.height() / 2) <= image.height() / 12 + 2);
    }

    void colorsAreThoseAskedFor()
    {
        const LabelFont font;
        const PictureLook look{u"\u2588I"_s, QColor(10, 20, 30), QColor(250, 240, 0, 128)};
        const LabeledPicture picture({{200, 100}, 1}, look, font);
        QVERIFY(!picture.isOpaque());
        const QImage image = picture.toImage();
        QCOMPARE(image.pixel(0, 0), qRgba(250, 240, 0, 128));
        bool inked = false;
        for (int x = 0; x < image.width(); ++x)
            inked = inked || image.pixel(x, 50) == qRgba(10, 20, 30, 255);
        QVERIFY(inked);
    }

    void theDefaultLooksLikeTheClassicOne()
    {
        const LabelFont font;
        const QImage image = LabeledPicture({{640, 480}, 1}, {}, font).toImage();
        QCOMPARE(image.pixel(0, 0), qRgba(128, 128, 128, 255));
        QVERIFY(LabeledPicture({{640, 480}, 1}, {}, font).isOpaque());
    }

    void theSvgIsSoundXmlWhateverTheText()
    {
        const LabelFont font;
        const PictureLook look{u"<&\"']]>\x01\nend"_s, QColor(1, 2, 3, 4), QColor(5, 6, 7)};
        const QByteArray svg = LabeledPicture({{100, 50}, 2}, look, font).toSvg();
        QXmlStreamReader reader(svg);
        QString title;
        QStringList elements;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            elements << reader.name().toString();
            if (reader.name() == u"svg")
                QCOMPARE(reader.attributes().value("viewBox"_L1), u"0 0 100 50");
            if (reader.name() == u"title")
                title = reader.readElementText();
        }
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
        QCOMPARE(elements, (QStringList{u"svg"_s, u"title"_s, u"rect"_s, u"path"_s}));
        QCOMPARE(title, u"<&\"']]>\nend"_s);
    }

    void missingShapesAreNamed()
    {
        const LabelFont font;
        QCOMPARE(withoutShape(u"Gr\u00FC\u00DFe\n{size}"_s, font), QString());
        QCOMPARE(withoutShape(u"a\u4E2Db\u4E2D"_s, font), u"\u4E2D"_s);
    }

    void everyFormatIsWritten_data()
    {
        QTest::addColumn<LabeledFormat>("format");
        QTest::addColumn<QString>("name");
        QTest::newRow("png") << LabeledFormat::Png << u"placeholder_80x60@2x.png"_s;
        QTest::newRow("webp") << LabeledFormat::WebP << u"placeholder_80x60@2x.webp"_s;
        QTest::newRow("svg") << LabeledFormat::Svg << u"placeholder_80x60@2x.svg"_s;
    }
    void everyFormatIsWritten()
    {
        QFETCH(LabeledFormat, format);
        QTemporaryDir folder;
        const PlaceholderRun run = saveLabeledPictures({{{80, 60}, 2}}, {}, {format, {}}, folder.path());
        QCOMPARE(run.files.size(), std::size_t{1});
        const PlaceholderFile &file = run.files[0];
        QVERIFY(file.outcome.ok());
        QTEST(QFileInfo(file.path).fileName(), "name");
        QCOMPARE(QFileInfo(file.path).size(), file.bytes);
        if (format != LabeledFormat::Svg) {
            const QImage read = QImage(file.path).convertToFormat(QImage::Format_RGBA8888);
            const QImage drawn = LabeledPicture({{80, 60}, 2}, {}, LabelFont()).toImage();
            QCOMPARE(read.size(), drawn.size());
            for (int y = 0; y < drawn.height(); ++y) {
                for (int x = 0; x < drawn.width(); ++x)
                    QCOMPARE(read.pixel(x, y), drawn.pixel(x, y));
            }
        }
    }

    void whatWebPCannotHoldIsRefused()
    {
        QTemporaryDir folder;
        const PlaceholderRun run =
            saveLabeledPictures({{{9999, 9999}, 1}}, {}, {LabeledFormat::WebP, {}}, folder.path());
        QCOMPARE(run.files[0].outcome.failure().code, FailureCode::TooLarge);
    }
};

QTEST_MAIN(LabeledPictureTest)
#include "LabeledPictureTest.moc"
