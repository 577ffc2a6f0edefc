// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "SmallDisk.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/pictures/TestPictures.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// The address space for runs with hostile files, in bytes, including the libraries.
constexpr quint64 limitedMemory = 1'000'000'000;

} // namespace

/// The input that the icon commands refuse, and their complaints when they cannot write.
class IconFailuresTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void refusedSource_data();
    void refusedSource();
    void truncatedSource_data();
    void truncatedSource();
    void refusedDestination_data();
    void refusedDestination();
    void unreadableSource();
    void unwritableDestination();
    void fullDisk_data();
    void fullDisk();
    void longestFile();
    void outputCannotBeWritten();
    void memoryStaysBounded_data();
    void memoryStaysBounded();
    void littleMemoryIsReported_data();
    void littleMemoryIsReported();
    void customSize_data();
    void customSize();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_picture;

    QString at(const QString &name) const { return m_folder->filePath(name); }
    bool nothingWritten() const { return filesBelowFolder(at(u"out"_s)).isEmpty(); }
};

void IconFailuresTest::initTestCase()
{
    m_picture = pictureFile(testPicture(1024, 1024));
}

void IconFailuresTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(u"out"_s));
    QVERIFY(putFile(at(u"my.png"_s), m_picture));
}

void IconFailuresTest::refusedSource_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << u"not a picture"_s;
    QTest::newRow("text") << QByteArray("hello") << u"not a picture"_s;
    QTest::newRow("active content") << QByteArray(
                                           "<svg xmlns='http://www.w3.org/2000/svg' width='1024' height='1024'/>")
                                    << u"not a picture"_s;
    QTest::newRow("another size") << pictureFile(testPicture(64, 32)) << u"64 x 32 pixels"_s;
    QTest::newRow("no pixels") << pngClaiming(0, 0) << u"not a picture"_s;
    QTest::newRow("60000 x 60000 claimed") << pngClaiming(60000, 60000) << u"60000 x 60000 pixels"_s;
    QTest::newRow("1024 x 1024 claimed of less") << pngClaiming(1024, 1024) << u"damaged"_s;
}

void IconFailuresTest::refusedSource()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    QVERIFY(putFile(at(u"bad.png"_s), content));
    for (const QStringList &command :
         {QStringList{u"icons"_s, u"--platform"_s, u"all"_s}, QStringList{u"icon"_s, u"--size"_s, u"64"_s}}) {
        const LumoraRun run = LumoraProcess()
                                  .withMemory(limitedMemory)
                                  .run(command + QStringList{at(u"bad.png"_s), u"--to"_s, at(u"out"_s)});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY2(run.complaints().first().startsWith(QString(u"lumora: "_s + at(u"bad.png"_s) + u": "_s)),
                 run.err.constData());
        QVERIFY2(run.err.contains(reason.toUtf8()), run.err.constData());
        QVERIFY(QDir(at(u"out"_s)).isEmpty());
    }
}

void IconFailuresTest::truncatedSource_data()
{
    QTest::addColumn<QByteArray>("file");
    const QImage picture = testPicture(1024, 1024);
    QTest::newRow("png") << m_picture;
    QTest::newRow("jpeg") << pictureFile(picture, "jpeg");
    QTest::newRow("tiff") << pictureFile(picture, "tiff");
    QTest::newRow("webp") << pictureFile(picture, "webp");
    QTest::newRow("bmp") << pictureFile(picture.convertToFormat(QImage::Format_RGB32), "bmp");
}

void IconFailuresTest::truncatedSource()
{
    QFETCH(QByteArray, file);
    for (const double share : {0.00001, 0.001, 0.1, 0.5, 0.9, 0.999}) {
        QVERIFY(putFile(at(u"cut"_s), file.first(static_cast<qsizetype>(static_cast<double>(file.size()) * share))));
        const LumoraRun run = LumoraProcess()
                                  .withMemory(limitedMemory)
                                  .run({u"icon"_s, at(u"cut"_s), u"--size"_s, u"64"_s, u"--to"_s, at(u"out"_s)});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.complaints().size() == 1, run.err.constData());
        QVERIFY(QDir(at(u"out"_s)).isEmpty());
    }
}

void IconFailuresTest::refusedDestination_data()
{
    QTest::addColumn<QString>("destination");
    QTest::addColumn<QString>("reason");
    QTest::newRow("below a file") << u"my.png/out"_s << u"could not be created (Not a directory)"_s;
    QTest::newRow("a file") << u"my.png"_s << u"is not a folder"_s;
    QTest::newRow("a broken link") << u"link"_s << u"could not be created (File exists)"_s;
    QTest::newRow("a device") << u"/dev/null"_s << u"is not a folder"_s;
}

void IconFailuresTest::refusedDestination()
{
    QFETCH(QString, destination);
    QFETCH(QString, reason);
    QVERIFY(QFile::link(at(u"nowhere"_s), at(u"link"_s)));
    for (const QStringList &command :
         {QStringList{u"icons"_s, u"--platform"_s, u"all"_s}, QStringList{u"icon"_s, u"--size"_s, u"64"_s}}) {
        const LumoraRun run =
            LumoraProcess().in(m_folder->path()).run(command + QStringList{u"my.png"_s, u"--to"_s, destination});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY2(run.err.contains(reason.toUtf8()), run.err.constData());
    }
}

void IconFailuresTest::unreadableSource()
{
    QVERIFY(QFile::setPermissions(at(u"my.png"_s), QFile::Permissions()));
    const LumoraRun run = LumoraProcess().underPermissions().run(
        {u"icons"_s, at(u"my.png"_s), u"--platform"_s, u"all"_s, u"--to"_s, at(u"out"_s)});
    QCOMPARE(run.status, 1);
    QVERIFY2(run.err.contains("my.png: may not be opened"), run.err.constData());
    QVERIFY(nothingWritten());
}

void IconFailuresTest::unwritableDestination()
{
    QVERIFY(QFile::setPermissions(at(u"out"_s), QFile::ReadOwner | QFile::ExeOwner));
    const LumoraRun run = LumoraProcess().underPermissions().run(
        {u"icons"_s, at(u"my.png"_s), u"--platform"_s, u"all"_s, u"--to"_s, at(u"out"_s)});
    QCOMPARE(run.status, 1);
    QCOMPARE(run.out, QByteArray());
    QCOMPARE(run.complaints().size(), 1);
    QVERIFY2(run.err.contains("icons: could not be created (Permission denied)"), run.err.constData());
}

void IconFailuresTest::fullDisk_data()
{
    QTest::addColumn<quint64>("bytes");
    QTest::addColumn<QString>("platforms");
    QTest::addColumn<int>("files");
    QTest::newRow("room for none") << quint64{4096} << u"all"_s << 52;
    QTest::newRow("room for some") << quint64{400'000} << u"all"_s << 52;
    QTest::newRow("room for some of today's") << quint64{120'000} << u"macos,linux"_s << 26;
}

void IconFailuresTest::fullDisk()
{
    QFETCH(quint64, bytes);
    QFETCH(QString, platforms);
    QFETCH(int, files);
    const SmallDisk disk(bytes);
    QVERIFY(putFile(at(u"big"_s), {}));
    LumoraProcess process;
    // If mounting is not allowed, the files' length is limited instead, which fails at the same call.
    if (!disk.isMounted())
        process.withLongestFile(bytes / 10);
    const QString place = disk.path();
    const LumoraRun run = process.run({u"icons"_s, at(u"my.png"_s), u"--platform"_s, platforms, u"--to"_s, place});
    QCOMPARE(run.status, 1);
    const QStringList lines = run.complaints();
    const QStringList written = filesBelowFolder(place + u"/icons"_s);
    if (lines.size() == 1) {
        QVERIFY(lines[0].contains(u"could not be created"_s));
        QVERIFY(written.isEmpty());
        return;
    }
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines[1].startsWith(u"lumora: missing in "_s));
    QStringList missing = lines[1].section(u": "_s, 2).split(u", "_s);
    // The written and the missing files together are all files, and no partial file is left.
    QCOMPARE(missing.size() + written.size(), files);
    for (const QString &file : std::as_const(missing))
        QVERIFY2(!QDir::isAbsolutePath(file), qPrintable(file));
    for (const QString &file : written) {
        QVERIFY(!missing.contains(file));
        if (file.endsWith(u".png"_s))
            QVERIFY2(!QImage(place + u"/icons/"_s + file, "png").isNull(), qPrintable(file));
    }
}

void IconFailuresTest::longestFile()
{
    const LumoraRun run = LumoraProcess().withLongestFile(100'000).run(
        {u"icons"_s, at(u"my.png"_s), u"--platform"_s, u"android,mac"_s, u"--to"_s, at(u"out"_s), u"--json"_s});
    QCOMPARE(run.status, 1);
    const QStringList lines = run.complaints();
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines[0].contains(u"could not be written (File too large)"_s), qPrintable(lines[0]));
    for (const char *name : {"Android/ic_512x512.png", "Mac/icons.iconset/icon_512x512@2x.png", "Mac/icons.icns"}) {
        QVERIFY2(lines[1].contains(QString::fromLatin1(name)), qPrintable(lines[1]));
        QVERIFY(!QFile::exists(at(u"out/icons/"_s) + QString::fromLatin1(name)));
    }
    QVERIFY(run.json()[u"icns"_s].isNull());
    QCOMPARE(run.json()[u"files"_s].toArray().size(), filesBelowFolder(at(u"out"_s)).size());
}

void IconFailuresTest::outputCannotBeWritten()
{
    const LumoraRun run =
        LumoraProcess()
            .withOutputTo(u"/dev/full"_s)
            .run({u"icons"_s, u"--example"_s, u"--platform"_s, u"favicon"_s, u"--to"_s, at(u"out"_s)});
    QCOMPARE(run.status, 1);
    QVERIFY(run.err.contains("standard output"));
}

void IconFailuresTest::memoryStaysBounded_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("64 million deep pixels") << pngOfZeroes(8000, 8000);
    QTest::newRow("60000 x 60000 claimed") << pngClaiming(60000, 60000);
    QTest::newRow("a profile that unpacks to a gigabyte") << pngWithLongProfile(1'000'000'000);
}

void IconFailuresTest::memoryStaysBounded()
{
    QFETCH(QByteArray, file);
    const LumoraRun run = LumoraProcess()
                              .withInput(file)
                              .withMemory(limitedMemory)
                              .run({u"icon"_s, u"-"_s, u"--size"_s, u"64"_s, u"--to"_s, at(u"out"_s)});
    QCOMPARE(run.complaints().size(), run.status == 0 ? 0 : 1);
    QVERIFY(run.status == 0 || run.status == 1);
}

void IconFailuresTest::littleMemoryIsReported_data()
{
    // From too little for the larger icons to enough for all of them. A few megabytes decide which allocation fails,
    // and whether the system gives a thread.
    QTest::addColumn<QString>("platform");
    QTest::addColumn<quint64>("megabytes");
    for (const quint64 megabytes : {90, 94, 97, 100, 103, 106, 108, 110, 113, 130, 150, 200})
        QTest::addRow("iphone, %llu MB", megabytes) << u"iphone"_s << megabytes;
    for (const quint64 megabytes : {90, 100, 112, 118, 130, 190, 300})
        QTest::addRow("today, %llu MB", megabytes) << u"today"_s << megabytes;
}

void IconFailuresTest::littleMemoryIsReported()
{
    QFETCH(QString, platform);
    QFETCH(quint64, megabytes);
    const LumoraRun run = LumoraProcess()
                              .withMemory(megabytes * 1'000'000)
                              .run({u"icons"_s, u"--example"_s, u"--platform"_s, platform, u"--to"_s, at(u"out"_s)});
    QVERIFY2(run.status == 0 || run.status == 1, run.err.constData());
    QCOMPARE(run.complaints().isEmpty(), run.status == 0);
}

void IconFailuresTest::customSize_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<int>("edge");
    QTest::addColumn<int>("status");
    for (const char *size : {"0", "-5", "1025", "4294967360"})
        QTest::newRow(size) << QString::fromLatin1(size) << 0 << 1;
    // A text that is not a number is a wrong call; nothing is cut off to make it a number.
    for (const char *size : {"abc", "64px", "180.5", "180px", "0x7", "1e3", "--", "64 64", "½"})
        QTest::newRow(size) << QString::fromUtf8(size) << 0 << 2;
    QTest::newRow(" +64") << u" +64"_s << 64 << 0;
    QTest::newRow("1") << u"1"_s << 1 << 0;
    QTest::newRow("1024") << u"1024"_s << 1024 << 0;
}

void IconFailuresTest::customSize()
{
    QFETCH(QString, size);
    QFETCH(int, edge);
    const LumoraRun run = runLumora({u"icon"_s, at(u"my.png"_s), u"--size="_s + size, u"--to"_s, at(u"out"_s)});
    QTEST(run.status, "status");
    if (edge == 0) {
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY(run.err.contains("from 1 to 1024"));
        QVERIFY(nothingWritten());
        return;
    }
    QCOMPARE(run.lastLine(), at(u"out/icons"_s));
    QCOMPARE(QImage(at(u"out/icons/Custom/icon_%1x%1.png"_s.arg(edge))).size(), QSize(edge, edge));
}

QTEST_GUILESS_MAIN(IconFailuresTest)
#include "IconFailuresTest.moc"
