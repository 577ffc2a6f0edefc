// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "icons/IconCatalogue.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/pictures/TestPictures.h"

#include <QColorSpace>
#include <QJsonArray>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <sys/stat.h>

using namespace lumora;
using namespace Qt::StringLiterals;

class IconCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void everyPlatformOfTheBuiltInPicture();
    void everyPlatformOfASource();
    void json();
    void jsonWithoutMac();
    void platformList_data();
    void platformList();
    void customIcon_data();
    void customIcon();
    void sizesAndPlaces_data();
    void sizesAndPlaces();
    void toStandardOutput();
    void exactPlace();
    void standardInput();
    void relativePaths();
    void takenNames();
    void longAndForeignNames_data();
    void longAndForeignNames();

    void progressOnATerminalOnly();
    void icnsIsReadByAnotherProgram();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_picture;

    QString at(const QString &name) const { return m_folder->filePath(name); }
    bool nothingWritten() const { return filesBelowFolder(at(u"out"_s)).isEmpty(); }
};

void IconCommandsTest::initTestCase()
{
    m_picture = pictureFile(testPicture(1024, 1024));
}

void IconCommandsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(u"out"_s));
    QVERIFY(putFile(at(u"my.png"_s), m_picture));
}

void IconCommandsTest::everyPlatformOfTheBuiltInPicture()
{
    const LumoraRun run = runLumora({u"icons"_s, u"--example"_s, u"--platform"_s, u"all"_s, u"--to"_s, at(u"out"_s)});
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.status, 0);
    QCOMPARE(run.lastLine(), at(u"out/icons"_s));
    QCOMPARE(filesBelowFolder(at(u"out/icons"_s)).size(), 52);
    QCOMPARE(QImage(at(u"out/icons/iPhone/iTunesArtwork@2x"_s), "png").size(), QSize(1024, 1024));
}

void IconCommandsTest::everyPlatformOfASource()
{
    const LumoraRun run = runLumora({u"icons"_s, at(u"my.png"_s), u"--platform"_s, u"all"_s, u"--to"_s, at(u"out"_s)});
    QCOMPARE(run.status, 0);
    for (const PlatformIcons &platform : iconPlatforms) {
        QString folder = at(u"out/icons"_s) + QLatin1StringView(platform.folderSuffix);
        if (platform.platform == IconPlatform::Mac)
            folder += QLatin1StringView(iconsetSuffix);
        for (const IconEntry &icon : platform.icons) {
            const QImage picture(folder + u'/' + QLatin1StringView(icon.name), "png");
            QCOMPARE(picture.size(), QSize(icon.size, icon.size));
            QVERIFY(picture.hasAlphaChannel());
        }
    }
    QVERIFY(QFile::exists(at(u"out/icons/Mac/icons.icns"_s)));
}

void IconCommandsTest::json()
{
    const LumoraRun run =
        runLumora({u"icons"_s, at(u"my.png"_s), u"--platform"_s, u"all"_s, u"--to"_s, at(u"out"_s), u"--json"_s});
    QCOMPARE(run.status, 0);
    const QJsonObject result = run.json();
    QCOMPARE(result.keys(), (QStringList{u"errors"_s, u"files"_s, u"folder"_s, u"icns"_s, u"ok"_s, u"schema"_s}));
    QCOMPARE(result[u"folder"_s].toString(), at(u"out/icons"_s));
    QCOMPARE(result[u"icns"_s].toString(), at(u"out/icons/Mac/icons.icns"_s));
    const QJsonArray files = result[u"files"_s].toArray();
    QCOMPARE(files.size(), 51);
    for (const QJsonValue value : files) {
        const QJsonObject file = value.toObject();
        QCOMPARE(file.keys(), (QStringList{u"bytes"_s, u"path"_s, u"size"_s}));
        QCOMPARE(file[u"bytes"_s].toInteger(), QFileInfo(file[u"path"_s].toString()).size());
        QCOMPARE(QImage(file[u"path"_s].toString(), "png").width(), file[u"size"_s].toInt());
    }
}

void IconCommandsTest::jsonWithoutMac()
{
    const LumoraRun run =
        runLumora({u"icons"_s, u"--example"_s, u"--platform"_s, u"favicon"_s, u"--to"_s, at(u"out"_s), u"--json"_s});
    QVERIFY(run.json().contains(u"icns"_s));
    QVERIFY(run.json()[u"icns"_s].isNull());
}

void IconCommandsTest::platformList_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("folders");
    const QStringList phones{u"iPad"_s, u"iPhone"_s};
    QTest::newRow("two") << QStringList{u"--platform"_s, u"iphone,ipad"_s} << phones;
    QTest::newRow("with a blank") << QStringList{u"--platform"_s, u"iphone, ipad"_s} << phones;
    QTest::newRow("in another order") << QStringList{u"--platform"_s, u"ipad,iphone"_s} << phones;
    QTest::newRow("given twice") << QStringList{u"--platform"_s, u"ipad"_s, u"--platform"_s, u"iphone"_s} << phones;
    QTest::newRow("joined by =") << QStringList{u"--platform=web-touch"_s} << QStringList{u"Web Touch"_s};
    QTest::newRow("one of all") << QStringList{u"--platform"_s, u"android,all"_s}
                                << QStringList{u"Android"_s,   u"Favicon"_s, u"Mac"_s,
                                               u"Web Touch"_s, u"iPad"_s,    u"iPhone"_s};
}

void IconCommandsTest::platformList()
{
    QFETCH(QStringList, arguments);
    const LumoraRun run = runLumora(QStringList{u"icons"_s, u"--example"_s, u"--to"_s, at(u"out"_s)} + arguments);
    QCOMPARE(run.status, 0);
    QStringList folders = QDir(at(u"out/icons"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    folders.sort();
    QTEST(folders, "folders");
}

void IconCommandsTest::customIcon_data()
{
    QTest::addColumn<QStringList>("corners");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("cornerAlpha");
    QTest::newRow("by default") << QStringList{} << u"icon_100x100.png"_s << 255;
    QTest::newRow("none") << QStringList{u"--corners"_s, u"none"_s} << u"icon_100x100.png"_s << 255;
    QTest::newRow("iOS 6") << QStringList{u"--corners"_s, u"ios6"_s} << u"icon_100x100_iOS6.png"_s << 0;
    QTest::newRow("iOS 7") << QStringList{u"--corners"_s, u"ios7"_s} << u"icon_100x100_iOS7.png"_s << 0;
}

void IconCommandsTest::customIcon()
{
    QFETCH(QStringList, corners);
    QFETCH(QString, name);
    QFETCH(int, cornerAlpha);
    const LumoraRun run = runLumora(
        QStringList{u"icon"_s, at(u"my.png"_s), u"--size"_s, u"100"_s, u"--to"_s, at(u"out"_s), u"--json"_s} + corners);
    QCOMPARE(run.status, 0);
    const QString path = at(u"out/icons/Custom/"_s + name);
    QCOMPARE(filesBelowFolder(at(u"out"_s)), QStringList{u"icons/Custom/"_s + name});
    QCOMPARE(run.json()[u"files"_s].toArray(),
             (QJsonArray{QJsonObject{{u"path"_s, path}, {u"size"_s, 100}, {u"bytes"_s, QFileInfo(path).size()}}}));
    QVERIFY(run.json()[u"icns"_s].isNull());
    QCOMPARE(qAlpha(QImage(path).pixel(99, 99)), cornerAlpha);
}

void IconCommandsTest::sizesAndPlaces_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("a list in a fresh folder")
        << QStringList{u"--size"_s, u"16,32, 64"_s, u"--to"_s, u"out"_s}
        << QStringList{u"icons/Custom/icon_16x16.png"_s, u"icons/Custom/icon_32x32.png"_s,
                       u"icons/Custom/icon_64x64.png"_s};
    QTest::newRow("a list in a folder") << QStringList{u"--size=16"_s, u"--size=32"_s, u"--out"_s, u"out/a/b"_s}
                                        << QStringList{u"a/b/icon_16x16.png"_s, u"a/b/icon_32x32.png"_s};
    QTest::newRow("a file") << QStringList{u"--size"_s, u"16"_s, u"-o"_s, u"out/my icon"_s}
                            << QStringList{u"my icon"_s};
    QTest::newRow("a folder that is to be made") << QStringList{u"--size"_s, u"16"_s, u"--to"_s, u"out/a/b"_s}
                                                 << QStringList{u"a/b/icons/Custom/icon_16x16.png"_s};
}

void IconCommandsTest::sizesAndPlaces()
{
    QFETCH(QStringList, arguments);
    const LumoraProcess process = LumoraProcess().in(m_folder->path());
    const LumoraRun run = process.run(QStringList{u"icon"_s, u"my.png"_s} + arguments);
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.status, 0);
    QTEST(filesBelowFolder(at(u"out"_s)), "files");
}

void IconCommandsTest::toStandardOutput()
{
    const LumoraRun run = runLumora({u"icon"_s, at(u"my.png"_s), u"--size"_s, u"48"_s, u"-o"_s, u"-"_s});
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.status, 0);
    QVERIFY(nothingWritten());
    QCOMPARE(runLumora({u"icon"_s, at(u"my.png"_s), u"--size=48"_s, u"-o"_s, at(u"out/a.png"_s)}).status, 0);
    QCOMPARE(run.out, contentOfFile(at(u"out/a.png"_s)));
}

void IconCommandsTest::exactPlace()
{
    const QStringList arguments{u"icons"_s, at(u"my.png"_s),  u"--platform"_s, u"mac,favicon"_s,
                                u"--out"_s, at(u"out/res"_s), u"--json"_s};
    const LumoraRun first = runLumora(arguments);
    QCOMPARE(first.status, 0);
    QCOMPARE(first.json()[u"folder"_s].toString(), at(u"out/res"_s));
    const QStringList tree = filesBelowFolder(at(u"out/res"_s));
    QCOMPARE(tree.size(), 16);
    QVERIFY(tree.contains(u"Mac/icons.icns"_s) && tree.contains(u"Favicon/favicon-16.png"_s));
    QVERIFY(putFile(at(u"out/res/mine.txt"_s), "mine"));
    QVERIFY(putFile(at(u"out/res/Favicon/favicon-16.png"_s), "old"));
    QCOMPARE(runLumora(arguments).status, 0);
    QCOMPARE(filesBelowFolder(at(u"out/res"_s)).size(), 17);
    QCOMPARE(contentOfFile(at(u"out/res/mine.txt"_s)), QByteArray("mine"));
    QCOMPARE(QImage(at(u"out/res/Favicon/favicon-16.png"_s)).size(), QSize(16, 16));
}

void IconCommandsTest::standardInput()
{
    const LumoraRun run = LumoraProcess().withInput(m_picture).run(
        {u"icons"_s, u"-"_s, u"--platform"_s, u"favicon"_s, u"--to"_s, at(u"out"_s)});
    QCOMPARE(run.status, 0);
    (void)runLumora({u"icons"_s, at(u"my.png"_s), u"--platform"_s, u"favicon"_s, u"--to"_s, at(u"out"_s)});
    QCOMPARE(contentOfFile(at(u"out/icons/Favicon/favicon-64.png"_s)),
             contentOfFile(at(u"out/icons_1/Favicon/favicon-64.png"_s)));
    const LumoraRun empty = runLumora({u"icons"_s, u"-"_s, u"--platform"_s, u"favicon"_s, u"--to"_s, at(u"out"_s)});
    QCOMPARE(empty.status, 1);
    QVERIFY(empty.err.startsWith("lumora: standard input: "));
}

void IconCommandsTest::relativePaths()
{
    // A folder or file with a command's name does not replace the command.
    QVERIFY(QDir(m_folder->path()).mkdir(u"icons"_s));
    const LumoraRun run = LumoraProcess()
                              .in(m_folder->path())
                              .run({u"icons"_s, u"my.png"_s, u"--platform"_s, u"favicon"_s, u"--to"_s, u"out"_s});
    QCOMPARE(run.status, 0);
    QCOMPARE(QFileInfo(run.lastLine()).canonicalFilePath(), QFileInfo(at(u"out/icons"_s)).canonicalFilePath());
}

void IconCommandsTest::takenNames()
{
    QVERIFY(putFile(at(u"out/icons"_s), "mine"));
    QVERIFY(QDir(at(u"out"_s)).mkdir(u"icons_1"_s));
    QVERIFY(QFile::link(at(u"nowhere"_s), at(u"out/icons_2"_s)));
    const LumoraRun run =
        runLumora({u"icons"_s, u"--example"_s, u"--platform"_s, u"favicon"_s, u"--to"_s, at(u"out"_s)});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.lastLine(), at(u"out/icons_3"_s));
    QCOMPARE(contentOfFile(at(u"out/icons"_s)), QByteArray("mine"));
}

void IconCommandsTest::longAndForeignNames_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("foreign letters") << u"Ikönchen für 日本 🚀 \"quoted\" $HOME"_s;
    QTest::newRow("a line break") << u"two\nlines"_s;
    QTest::newRow("255 bytes") << QString(255, u'n');
    QTest::newRow("deep") << QString(u"abcdefghij/"_s).repeated(60).chopped(1);
    QTest::newRow("like an option") << u"--to"_s;
}

void IconCommandsTest::longAndForeignNames()
{
    QFETCH(QString, folder);
    QVERIFY(QDir(m_folder->path()).mkpath(folder));
    const QString source = at(folder) + u"/ü.png"_s;
    QVERIFY(putFile(source, m_picture));
    const LumoraRun run =
        runLumora({u"icons"_s, source, u"--platform"_s, u"favicon"_s, u"--to"_s, at(folder), u"--json"_s});
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.status, 0);
    QCOMPARE(run.json()[u"folder"_s].toString(), at(folder) + u"/icons"_s);
    QCOMPARE(filesBelowFolder(at(folder) + u"/icons"_s).size(), 5);
}

void IconCommandsTest::progressOnATerminalOnly()
{
    const QStringList arguments{u"icons"_s, at(u"my.png"_s), u"--platform"_s, u"all"_s, u"--to"_s, at(u"out"_s)};
    QCOMPARE(runLumora(arguments).err, QByteArray());
    const LumoraRun shown = LumoraProcess().onTerminal().run(arguments);
    QCOMPARE(shown.status, 0);
    QVERIFY(shown.err.contains("1/51 Icon.png"));
    QVERIFY(shown.err.contains("51/51 favicon-128.png"));
    QVERIFY(shown.err.endsWith("\r\033[K"));
    QCOMPARE(shown.out, at(u"out/icons_1"_s).toUtf8() + '\n');
}

void IconCommandsTest::icnsIsReadByAnotherProgram()
{
    QCOMPARE(runLumora({u"icons"_s, at(u"my.png"_s), u"--platform"_s, u"mac"_s, u"--to"_s, at(u"out"_s)}).status, 0);
    QProcess reader;
    // The tool only knows older members: 256, 512 and 1024 pixels.
    reader.start(u"icns2png"_s, {u"-x"_s, u"-o"_s, at(u"out"_s), at(u"out/icons/Mac/icons.icns"_s)});
    QVERIFY2(reader.waitForFinished(), "icns2png, from the Debian package icnsutils, is not there");
    const QMap<QString, QString> wanted = {{u"256x256"_s, u"icon_256x256.png"_s},
                                           {u"512x512"_s, u"icon_512x512.png"_s},
                                           {u"1024x1024"_s, u"icon_512x512@2x.png"_s}};
    for (auto size = wanted.cbegin(); size != wanted.cend(); ++size) {
        const QImage read(at(u"out/icons_%1x32.png"_s.arg(size.key())));
        QImage own(at(u"out/icons/Mac/icons.iconset/"_s + size.value()));
        // Qt takes a scale factor from names with "@2x".
        own.setDevicePixelRatio(1);
        own.setColorSpace(read.colorSpace());
        QVERIFY2(!read.isNull(), reader.readAllStandardOutput().constData());
        QCOMPARE(read.convertToFormat(QImage::Format_ARGB32), own.convertToFormat(QImage::Format_ARGB32));
    }
}

QTEST_GUILESS_MAIN(IconCommandsTest)
#include "IconCommandsTest.moc"
