// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "SmallDisk.h"
#include "tests/doubles/FilesOnDisk.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

const QStringList iosFiles = {
    u"placeholder_1024x1024.png"_s, u"placeholder_1136x640.png"_s, u"placeholder_640x1136.png"_s,
    u"placeholder_960x640.png"_s,   u"placeholder_640x960.png"_s,  u"placeholder_480x320.png"_s,
    u"placeholder_320x480.png"_s,   u"placeholder_1024x768.png"_s, u"placeholder_768x1024.png"_s};
const QStringList macFiles = {u"placeholder_1024x1024.png"_s, u"placeholder_512x512.png"_s,
                              u"placeholder_1440x900.png"_s, u"placeholder_1280x800.png"_s};

QString fileOfSize(QSize size)
{
    return u"placeholder_%1x%2.png"_s.arg(size.width()).arg(size.height());
}

/// A font configuration without any font.
const QByteArray noFonts = "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig/>";

/// The peak memory of any process so far, in bytes.
[[maybe_unused]] qint64 peakMemory()
{
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return qint64{usage.ru_maxrss} * 1024;
}

} // namespace

class PlaceholdersCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"out"_s));
    }

    // First, since later runs would hide a smaller peak.
    void theLargestTakesLittleMemory()
    {
        QCOMPARE(write({u"--size"_s, u"9999x9999"_s}).status, 0);
        QVERIFY(filesBelowFolder(out()).contains(u"placeholders/placeholder_9999x9999.png"_s));
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        // Its pixels alone would take 400 MB; the run takes hardly more than the program itself.
        QVERIFY2(peakMemory() < 100'000'000, qPrintable(QString::number(peakMemory())));
#endif
    }

    void leavesNothingInTheFolderForTemporaryFiles_data()
    {
        QTest::addColumn<QString>("runtimeFolder");
        QTest::newRow("no runtime folder") << QString();
        QTest::newRow("a missing one") << u"/missing/runtime"_s;
        QTest::newRow("no folder") << u"/dev/null"_s;
    }
    void leavesNothingInTheFolderForTemporaryFiles()
    {
        QFETCH(QString, runtimeFolder);
        const QTemporaryDir temporary;
        LumoraProcess program;
        program.withVariable(u"TMPDIR"_s, temporary.path()).withVariable(u"XDG_RUNTIME_DIR"_s, runtimeFolder);
        const LumoraRun run = program.run({u"placeholders"_s, u"--size"_s, u"8x8"_s, u"--out"_s, out()});
        QCOMPARE(run.status, 0);
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(QDir(temporary.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList());
    }

    void aSetInItsOrder_data()
    {
        QTest::addColumn<QString>("set");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("ios") << u"ios"_s << iosFiles;
        QTest::newRow("mac") << u"mac"_s << macFiles;
    }
    void aSetInItsOrder()
    {
        QFETCH(QString, set);
        QFETCH(QStringList, names);
        const LumoraRun run = write({u"--set"_s, set, u"--json"_s});
        QCOMPARE(run.status, 0);
        QCOMPARE(run.err, QByteArray());
        const QJsonObject result = run.json();
        QCOMPARE(result.keys(), (QStringList{u"errors"_s, u"files"_s, u"folder"_s, u"ok"_s, u"schema"_s}));
        QCOMPARE(result[u"schema"_s].toInt(), 1);
        QCOMPARE(result[u"folder"_s].toString(), out(u"placeholders"_s));
        QStringList told;
        for (const QJsonValue value : result[u"files"_s].toArray()) {
            const QJsonObject file = value.toObject();
            QCOMPARE(file.keys(), (QStringList{u"bytes"_s, u"height"_s, u"path"_s, u"width"_s}));
            const QString path = file[u"path"_s].toString();
            const QSize size(file[u"width"_s].toInt(), file[u"height"_s].toInt());
            QCOMPARE(QFileInfo(path).fileName(), fileOfSize(size));
            QCOMPARE(file[u"bytes"_s].toInteger(), QFileInfo(path).size());
            const QImage picture(path);
            QCOMPARE(picture.size(), size);
            QCOMPARE(picture.pixel(0, 0), qRgb(128, 128, 128));
            told << QFileInfo(path).fileName();
        }
        QCOMPARE(told, names);
        QCOMPARE(filesBelowFolder(out()).size(), names.size());
    }

    void theFolderIsTheLastLine()
    {
        const LumoraRun run = write({u"--set"_s, u"mac"_s});
        QCOMPARE(run.status, 0);
        QCOMPARE(run.out, out(u"placeholders"_s).toUtf8() + '\n');
        QCOMPARE(run.err, QByteArray());
    }

    void sizes_data()
    {
        QTest::addColumn<QStringList>("sizes");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("one") << QStringList{u"30x20"_s} << QStringList{u"placeholder_30x20.png"_s};
        QTest::newRow("several, in their order")
            << QStringList{u"30x20"_s, u"5x7"_s, u"200x3"_s}
            << QStringList{u"placeholder_30x20.png"_s, u"placeholder_5x7.png"_s, u"placeholder_200x3.png"_s};
        QTest::newRow("one twice") << QStringList{u"30x20"_s, u"5x7"_s, u"30 x 20"_s}
                                   << QStringList{u"placeholder_30x20.png"_s, u"placeholder_5x7.png"_s};
        QTest::newRow("a list") << QStringList{u"30x20, 5x7"_s, u"200x3"_s}
                                << QStringList{u"placeholder_30x20.png"_s, u"placeholder_5x7.png"_s,
                                               u"placeholder_200x3.png"_s};
        QTest::newRow("the smallest") << QStringList{u"1x1"_s} << QStringList{u"placeholder_1x1.png"_s};
        QTest::newRow("a strip") << QStringList{u"9999x1"_s} << QStringList{u"placeholder_9999x1.png"_s};
    }
    void sizes()
    {
        QFETCH(QStringList, sizes);
        QFETCH(QStringList, names);
        QStringList arguments{u"--json"_s};
        for (const QString &size : sizes)
            arguments << u"--size"_s << size;
        const LumoraRun run = write(arguments);
        QCOMPARE(run.status, 0);
        QStringList told;
        for (const QJsonValue file : run.json()[u"files"_s].toArray())
            told << QFileInfo(file[u"path"_s].toString()).fileName();
        QCOMPARE(told, names);
        QCOMPARE(filesBelowFolder(out()).size(), names.size());
    }

    void refusedSize_data()
    {
        QTest::addColumn<QString>("size");
        QTest::addColumn<int>("status");
        for (const char *size : {"10x0", "10000x10", "10x10000", "-5x10", "10x-5", "4294967297x10"})
            QTest::newRow(size) << QString::fromLatin1(size) << 1;
        // A text that is not a size is a wrong call; nothing is cut off to make it a size.
        for (const char *size : {"0x10", "0x7", "abcx10", "10xabc", "x10", "10x", "300", "1e3x5", "300abcx200",
                                 "180.5x20", "10x10px", "10x10x10"})
            QTest::newRow(size) << QString::fromLatin1(size) << 2;
    }
    void refusedSize()
    {
        QFETCH(QString, size);
        // Together with good sizes, which are not written either.
        const LumoraRun run = write({u"--size"_s, u"30x20"_s, u"--size="_s + size});
        QTEST(run.status, "status");
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY2(run.err.contains(QByteArray(": --size " + size.toUtf8() + ": ")), run.err.constData());
        QVERIFY2(run.err.contains("from 1 to 9999"), run.err.constData());
        QVERIFY(QDir(out()).isEmpty());
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("named");
        const QStringList to{u"--to"_s, u"out"_s};
        QTest::newRow("nothing to write") << to << u"--set"_s;
        QTest::newRow("a set and a size")
            << to + QStringList{u"--set"_s, u"ios"_s, u"--size"_s, u"3x3"_s} << u"--size"_s;
        QTest::newRow("an unknown set") << to + QStringList{u"--set"_s, u"palm"_s} << u"mac"_s;
        QTest::newRow("no destination") << QStringList{u"--set"_s, u"ios"_s} << u"--to"_s;
        QTest::newRow("a size without its value") << to + QStringList{u"--size"_s} << u"--size"_s;
        QTest::newRow("an empty size") << to + QStringList{u"--size"_s, u""_s} << u"--size"_s;
        QTest::newRow("two sizes behind one option") << to + QStringList{u"--size"_s, u"3x3"_s, u"4x4"_s} << u"4x4"_s;
        QTest::newRow("an unknown option") << to + QStringList{u"--set"_s, u"ios"_s, u"--gray"_s} << u"--gray"_s;
    }
    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, named);
        const LumoraRun run = LumoraProcess().in(m_folder->path()).run(QStringList{u"placeholders"_s} + arguments);
        QCOMPARE(run.status, 2);
        QCOMPARE(run.out, QByteArray());
        QVERIFY2(run.err.contains(named.toUtf8()), run.err.constData());
        QVERIFY(QDir(out()).isEmpty());
    }

    void help()
    {
        const LumoraRun run = runLumora({u"placeholders"_s, u"--help"_s});
        QCOMPARE(run.status, 0);
        QVERIFY(run.out.contains("--set") && run.out.contains("--size") && run.out.contains("9999"));
        QCOMPARE(run.err, QByteArray());
    }

    void takenNames()
    {
        QVERIFY(putFile(out(u"placeholders"_s), "mine"));
        QVERIFY(QDir(out()).mkdir(u"placeholders_1"_s));
        QVERIFY(QFile::link(m_folder->filePath(u"nowhere"_s), out(u"placeholders_2"_s)));
        const LumoraRun run = write({u"--size"_s, u"3x3"_s});
        QCOMPARE(run.status, 0);
        QCOMPARE(run.lastLine(), out(u"placeholders_3"_s));
        QCOMPARE(contentOfFile(out(u"placeholders"_s)), QByteArray("mine"));
    }

    void refusedDestination_data()
    {
        QTest::addColumn<QString>("destination");
        QTest::addColumn<QString>("reason");
        QTest::newRow("below a file") << u"file/out"_s << u"could not be created (Not a directory)"_s;
        QTest::newRow("a file") << u"file"_s << u"is not a folder"_s;
        QTest::newRow("a broken link") << u"link"_s << u"could not be created (File exists)"_s;
        QTest::newRow("a device") << u"/dev/null"_s << u"is not a folder"_s;
    }
    void refusedDestination()
    {
        QFETCH(QString, destination);
        QFETCH(QString, reason);
        QVERIFY(putFile(m_folder->filePath(u"file"_s), "mine"));
        QVERIFY(QFile::link(m_folder->filePath(u"nowhere"_s), m_folder->filePath(u"link"_s)));
        const QStringList before = filesBelowFolder(m_folder->path());
        const LumoraRun run =
            LumoraProcess().in(m_folder->path()).run({u"placeholders"_s, u"--set"_s, u"mac"_s, u"--to"_s, destination});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY2(run.err.contains(reason.toUtf8()), run.err.constData());
        QCOMPARE(filesBelowFolder(m_folder->path()), before);
    }

    void unwritableDestination()
    {
        QVERIFY(QFile::setPermissions(out(), QFile::ReadOwner | QFile::ExeOwner));
        const LumoraRun run =
            LumoraProcess().underPermissions().run({u"placeholders"_s, u"--set"_s, u"mac"_s, u"--to"_s, out()});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY2(run.err.contains("placeholders: could not be created (Permission denied)"), run.err.constData());
    }

    void relativePaths()
    {
        const LumoraRun run =
            LumoraProcess().in(m_folder->path()).run({u"placeholders"_s, u"--set"_s, u"mac"_s, u"--to"_s, u"out"_s});
        QCOMPARE(run.status, 0);
        QCOMPARE(QFileInfo(run.lastLine()).canonicalFilePath(), QFileInfo(out(u"placeholders"_s)).canonicalFilePath());
    }

    void longAndForeignNames_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("foreign letters") << u"Plätze für 日本 🚀 \"quoted\" $HOME"_s;
        QTest::newRow("a line break") << u"two\nlines"_s;
        QTest::newRow("255 bytes") << QString(255, u'n');
        QTest::newRow("deep") << QString(u"abcdefghij/"_s).repeated(60).chopped(1);
        QTest::newRow("like an option") << u"--set"_s;
    }
    void longAndForeignNames()
    {
        QFETCH(QString, folder);
        const QString place = m_folder->filePath(folder);
        QVERIFY(QDir().mkpath(place));
        const LumoraRun run = runLumora({u"placeholders"_s, u"--size"_s, u"3x3"_s, u"--to"_s, place, u"--json"_s});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(run.json()[u"folder"_s].toString(), QString(place + u"/placeholders"_s));
        QCOMPARE(filesBelowFolder(place), QStringList{u"placeholders/placeholder_3x3.png"_s});
    }

    void oneFileTooLong()
    {
        // In the Mac's set, only the picture of 512 pixels is short enough.
        const LumoraRun reference = write({u"--set"_s, u"mac"_s, u"--json"_s});
        QList<qint64> lengths;
        for (const QJsonValue file : reference.json()[u"files"_s].toArray())
            lengths << file[u"bytes"_s].toInteger();
        const qint64 small = lengths.at(1);
        const LumoraRun run = LumoraProcess()
                                  .withLongestFile(static_cast<quint64>(small))
                                  .run({u"placeholders"_s, u"--set"_s, u"mac"_s, u"--to"_s, out(), u"--json"_s});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.complaints().size(), 3);
        for (const QString &line : run.complaints())
            QVERIFY2(line.contains(u"could not be written (File too large)"_s), qPrintable(line));
        QCOMPARE(run.json()[u"files"_s].toArray().size(), 1);
        QCOMPARE(filesBelowFolder(out(u"placeholders_1"_s)), QStringList{u"placeholder_512x512.png"_s});
    }

    void fullDisk()
    {
        // Enough space for the folder and the small pictures.
        const SmallDisk disk(24 * 1024);
        LumoraProcess process;
        // If mounting is not allowed, the files' length is limited instead, which fails at the same call.
        if (!disk.isMounted())
            process.withLongestFile(6 * 1024);
        const LumoraRun run = process.run({u"placeholders"_s, u"--set"_s, u"ios"_s, u"--to"_s, disk.path()});
        QCOMPARE(run.status, 1);
        const QStringList written = filesBelowFolder(disk.path() + u"/placeholders"_s);
        QVERIFY(!written.isEmpty());
        // Each missing file is reported, and none is partly written.
        QCOMPARE(run.complaints().size() + written.size(), iosFiles.size());
        for (const QString &name : written)
            QVERIFY2(!QImage(disk.path() + u"/placeholders/"_s + name).isNull(), qPrintable(name));
    }

    void outputCannotBeWritten()
    {
        const LumoraRun run = LumoraProcess()
                                  .withOutputTo(u"/dev/full"_s)
                                  .run({u"placeholders"_s, u"--size"_s, u"3x3"_s, u"--to"_s, out()});
        QCOMPARE(run.status, 1);
        QVERIFY(run.err.contains("standard output"));
    }

    void progressOnATerminalOnly()
    {
        const LumoraRun shown =
            LumoraProcess().onTerminal().run({u"placeholders"_s, u"--set"_s, u"mac"_s, u"--to"_s, out()});
        QCOMPARE(shown.status, 0);
        QVERIFY(shown.err.contains("1/4 ") && shown.err.contains("4/4 "));
        QVERIFY(shown.err.endsWith("\r\033[K"));
        QCOMPARE(shown.out, out(u"placeholders"_s).toUtf8() + '\n');
    }

    void surroundingsDoNotMatter_data()
    {
        QTest::addColumn<QStringList>("variables");
        QTest::newRow("another scale factor") << QStringList{u"QT_SCALE_FACTOR"_s, u"2.5"_s};
        QTest::newRow("another text resolution") << QStringList{u"QT_FONT_DPI"_s, u"192"_s};
        QTest::newRow("no fonts") << QStringList{u"FONTCONFIG_FILE"_s, u"FOLDER/no-fonts"_s};
        QTest::newRow("German") << QStringList{u"LC_ALL"_s, u"de_DE.UTF-8"_s};
        QTest::newRow("other digits") << QStringList{u"LC_ALL"_s, u"ar_EG.UTF-8"_s};
        QTest::newRow("the bare locale") << QStringList{u"LC_ALL"_s, u"C"_s};
        QTest::newRow("a display that is not there") << QStringList{u"QT_QPA_PLATFORM"_s, u"xcb"_s};
        QTest::newRow("other hinting") << QStringList{u"FREETYPE_PROPERTIES"_s, u"truetype:interpreter-version=35"_s};
    }
    void surroundingsDoNotMatter()
    {
        QFETCH(QStringList, variables);
        QVERIFY(putFile(m_folder->filePath(u"no-fonts"_s), noFonts));
        const QStringList arguments{u"placeholders"_s, u"--size"_s, u"640x200"_s, u"--size"_s,
                                    u"57x57"_s,        u"--to"_s,   out()};
        QCOMPARE(runLumora(arguments).status, 0);
        const QString value = variables[1].replace(u"FOLDER"_s, m_folder->path());
        const LumoraRun run = LumoraProcess().withVariable(variables[0], value).run(arguments);
        QCOMPARE(run.status, 0);
        QCOMPARE(run.err, QByteArray());
        for (const QString &name : {u"/placeholder_640x200.png"_s, u"/placeholder_57x57.png"_s}) {
            const QByteArray plain = contentOfFile(out(u"placeholders"_s) + name);
            QVERIFY(!plain.isEmpty());
            QCOMPARE(contentOfFile(out(u"placeholders_1"_s) + name), plain);
        }
    }

private:
    QString out(const QString &name = {}) const
    {
        return m_folder->filePath(name.isEmpty() ? u"out"_s : u"out/"_s + name);
    }
    LumoraRun write(const QStringList &arguments) const
    {
        return runLumora(QStringList{u"placeholders"_s, u"--to"_s, out()} + arguments);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(PlaceholdersCommandTest)
#include "PlaceholdersCommandTest.moc"
