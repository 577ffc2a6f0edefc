// SPDX-License-Identifier: MIT
#include "icons/IconSource.h"

#include "pictures/pixels/SizeText.h"
#include "tests/pictures/TestPictures.h"

#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class IconSourceTest : public QObject
{
    Q_OBJECT

private slots:
    void size_data();
    void size();
    void everyFormatIsAccepted_data();
    void everyFormatIsAccepted();
    void refusedPaths_data();
    void refusedPaths();
    void builtInPictureIsGoodAsSource();
};

void IconSourceTest::size_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("dotsPerInch");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("1024 x 1024") << QSize(1024, 1024) << 72 << true;
    QTest::newRow("1023 x 1023") << QSize(1023, 1023) << 72 << false;
    QTest::newRow("2048 x 2048") << QSize(2048, 2048) << 72 << false;
    QTest::newRow("1024 x 768") << QSize(1024, 768) << 72 << false;
    QTest::newRow("768 x 1024") << QSize(768, 1024) << 72 << false;
    QTest::newRow("one pixel") << QSize(1, 1) << 72 << false;
    QTest::newRow("1024 x 1024 at 144 dots per inch") << QSize(1024, 1024) << 144 << true;
    QTest::newRow("1024 x 1024 at 36 dots per inch") << QSize(1024, 1024) << 36 << true;
    QTest::newRow("2048 x 2048 at 144 dots per inch") << QSize(2048, 2048) << 144 << false;
}

void IconSourceTest::size()
{
    QFETCH(QSize, size);
    QFETCH(int, dotsPerInch);
    QFETCH(bool, accepted);
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    picture.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
    picture.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
    const QByteArray file = pictureFile(picture);
    QVERIFY(file.contains("pHYs"));
    const Result<QImage> source = readIconSource(file, u"the picture"_s);
    QCOMPARE(source.ok(), accepted);
    if (accepted) {
        QCOMPARE(source.value().size(), size);
        QCOMPARE(source.value().devicePixelRatio(), 1.0);
    } else {
        QCOMPARE(source.failure(), (Failure{FailureCode::WrongSize, u"the picture"_s, pixelsDetail(size)}));
    }
}

void IconSourceTest::everyFormatIsAccepted_data()
{
    QTest::addColumn<QByteArray>("file");
    const QImage picture = testPicture(1024, 1024);
    const QImage opaque = picture.convertToFormat(QImage::Format_RGB32);
    for (const char *format : {"png", "jpeg", "tiff", "webp"})
        QTest::newRow(format) << pictureFile(picture, format);
    QTest::newRow("bmp") << pictureFile(opaque, "bmp");
    QTest::newRow("png, 16 bits") << pictureFile(picture.convertToFormat(QImage::Format_RGBA64));
    QTest::newRow("png, palette") << pictureFile(opaque.convertToFormat(QImage::Format_Indexed8));
    QTest::newRow("png, grey") << pictureFile(opaque.convertToFormat(QImage::Format_Grayscale8));
    QTest::newRow("png, grey, 16 bits") << pictureFile(opaque.convertToFormat(QImage::Format_Grayscale16));
    QTest::newRow("png, black and white") << pictureFile(opaque.convertToFormat(QImage::Format_Mono));
}

void IconSourceTest::everyFormatIsAccepted()
{
    QFETCH(QByteArray, file);
    QVERIFY(!file.isEmpty());
    const Result<QImage> source = readIconSource(file, u"x"_s);
    QVERIFY(source.ok());
    QCOMPARE(source.value().size(), QSize(1024, 1024));
    QCOMPARE(source.value().format(), QImage::Format_RGBA8888_Premultiplied);
}

void IconSourceTest::refusedPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<FailureCode>("code");
    QTest::newRow("missing") << u"missing.png"_s << FailureCode::NotFound;
    QTest::newRow("below a file") << u"text.png/x.png"_s << FailureCode::NotFound;
    QTest::newRow("a folder") << u"."_s << FailureCode::IsFolder;
    QTest::newRow("empty") << u"empty.png"_s << FailureCode::NotAPicture;
    QTest::newRow("text called .png") << u"text.png"_s << FailureCode::NotAPicture;
    QTest::newRow("name too long") << QString(300, u'x') << FailureCode::NotFound;
    QTest::newRow("an endless device") << u"/dev/zero"_s << FailureCode::NotReadable;
    QTest::newRow("an empty device") << u"/dev/null"_s << FailureCode::NotReadable;
}

void IconSourceTest::refusedPaths()
{
    QFETCH(QString, path);
    const QTemporaryDir folder;
    const auto put = [&folder](const QString &name, const QByteArray &content) {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    QVERIFY(put(u"empty.png"_s, {}));
    QVERIFY(put(u"text.png"_s, "no picture"));
    const Result<QImage> source = readIconSource(path.startsWith(u'/') ? path : folder.filePath(path));
    QVERIFY(!source.ok());
    QTEST(source.failure().code, "code");
}

void IconSourceTest::builtInPictureIsGoodAsSource()
{
    const Result<QImage> builtIn = builtInIcon();
    QVERIFY(builtIn.ok());
    const QImage &picture = builtIn.value();
    QCOMPARE(picture.size(), QSize(1024, 1024));
    QVERIFY(picture.constScanLine(0)[3] < 255);
    QCOMPARE(int(picture.constScanLine(512)[4 * 512 + 3]), 255);
}

QTEST_GUILESS_MAIN(IconSourceTest)
#include "IconSourceTest.moc"
