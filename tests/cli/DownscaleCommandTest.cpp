// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/pictures/TestPictures.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <sched.h>
#include <sys/stat.h>

using namespace lumora;
using namespace Qt::StringLiterals;

class DownscaleCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_picture = pictureFile(testPicture(40, 31)); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"out"_s));
    }

    void printsEachPath()
    {
        put({u"b@2x.png"_s, u"a-hd.png"_s, u"logo-hd@2x.png"_s});
        const LumoraRun run = downscale({at(u"b@2x.png"_s), at(u"a-hd.png"_s), at(u"logo-hd@2x.png"_s)});
        QCOMPARE(run.status, 0);
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.out, (at(u"out/b.png\n"_s) + at(u"out/a.png\n"_s) + at(u"out/logo.png\n"_s)).toUtf8());
        QCOMPARE(filesBelowFolder(at(u"out"_s)), (QStringList{u"a.png"_s, u"b.png"_s, u"logo.png"_s}));
        QCOMPARE(QImage(at(u"out/b.png"_s)).size(), QSize(20, 15));
    }

    void json()
    {
        put({u"b@2x.png"_s});
        const LumoraRun run = downscale({at(u"b@2x.png"_s), u"--json"_s});
        QCOMPARE(run.status, 0);
        QCOMPARE(
            run.json(),
            (QJsonObject{{u"schema"_s, 1},
                         {u"ok"_s, true},
                         {u"errors"_s, QJsonArray()},
                         {u"files"_s, QJsonArray{QJsonObject{{u"source"_s, at(u"b@2x.png"_s)},
                                                             {u"path"_s, at(u"out/b.png"_s)},
                                                             {u"width"_s, 20},
                                                             {u"height"_s, 15},
                                                             {u"bytes"_s, QFileInfo(at(u"out/b.png"_s)).size()}}}}}));
    }

    void folders_data()
    {
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QStringList>("named");
        QTest::addColumn<QStringList>("written");
        QTest::newRow("to the bottom, in the order of paths")
            << QStringList{u"art/z@2x.png"_s, u"art/x/y/c-HD.png"_s, u"art/plain.png"_s, u"art/d@2X.png"_s}
            << QStringList{u"art"_s} << QStringList{u"d.png"_s, u"c.png"_s, u"z.png"_s};
        QTest::newRow("a marked folder") << QStringList{u"art-hd/plain.png"_s} << QStringList{u"art-hd"_s}
                                         << QStringList{u"plain.png"_s};
        QTest::newRow("a file and a folder")
            << QStringList{u"b@2x.png"_s, u"art/a@2x.png"_s} << QStringList{u"b@2x.png"_s, u"art"_s}
            << QStringList{u"b.png"_s, u"a.png"_s};
        QTest::newRow("the same twice") << QStringList{u"art/a@2x.png"_s} << QStringList{u"art/a@2x.png"_s, u"art/."_s}
                                        << QStringList{u"a.png"_s};
    }
    void folders()
    {
        QFETCH(QStringList, present);
        QFETCH(QStringList, named);
        QFETCH(QStringList, written);
        put(present);
        const LumoraRun run = LumoraProcess()
                                  .in(m_folder->path())
                                  .run(QStringList{u"downscale"_s} + named + QStringList{u"--to"_s, at(u"out"_s)});
        QCOMPARE(run.status, 0);
        QCOMPARE(run.err, QByteArray());
        QString lines;
        for (const QString &name : written)
            lines += at(u"out/"_s + name) + u'\n';
        QCOMPARE(QString::fromUtf8(run.out), lines);
        QCOMPARE(filesBelowFolder(at(u"out"_s)).size(), written.size());
    }

    void dryRunWritesNothing_data()
    {
        QTest::addColumn<bool>("json");
        QTest::newRow("text") << false;
        QTest::newRow("JSON") << true;
    }
    void dryRunWritesNothing()
    {
        QFETCH(bool, json);
        put({u"a@2x.png"_s, u"b@2x.png"_s});
        QVERIFY(putFile(at(u"text@2x.png"_s), "text"));
        QVERIFY(putFile(at(u"huge@2x.png"_s), pngClaiming(60000, 60000)));
        QVERIFY(putFile(at(u"dot@2x.png"_s), pictureFile(testPicture(1, 1))));
        QCOMPARE(::mkfifo(QFile::encodeName(at(u"pipe@2x.png"_s)).constData(), 0600), 0);
        const QStringList form = json ? QStringList{u"--json"_s} : QStringList{};
        const QStringList arguments{at(u"a@2x.png"_s),    at(u"text@2x.png"_s), at(u"huge@2x.png"_s),
                                    at(u"pipe@2x.png"_s), at(u"dot@2x.png"_s),  at(u"b@2x.png"_s)};
        const LumoraRun dry = downscale(arguments + form + QStringList{u"--dry-run"_s});
        QCOMPARE(dry.status, 1);
        QVERIFY(QDir(at(u"out"_s)).isEmpty());
        // The dry run reports the same as the run, except for the files' lengths.
        const LumoraRun wet = downscale(arguments + form);
        QCOMPARE(dry.status, wet.status);
        QCOMPARE(dry.complaints(), wet.complaints());
        // A picture of one pixel is valid, so three are refused.
        QCOMPARE(dry.complaints().size(), 3);
        if (!json) {
            QCOMPARE(dry.out, wet.out);
            return;
        }
        QCOMPARE(withoutLengths(dry.json()), withoutLengths(wet.json()));
        QVERIFY(!dry.json()[u"files"_s].toArray().at(0).toObject().contains(u"bytes"_s));
    }

    void sourcesAreNotReplaced_data()
    {
        QTest::addColumn<QStringList>("overwrite");
        QTest::addColumn<QString>("destination");
        QTest::addColumn<QSize>("left");
        QTest::newRow("refused") << QStringList{} << u"art-hd"_s << QSize(40, 31);
        QTest::newRow("refused through a link") << QStringList{} << u"link"_s << QSize(40, 31);
        QTest::newRow("allowed") << QStringList{u"--overwrite"_s} << u"art-hd"_s << QSize(20, 15);
    }
    void sourcesAreNotReplaced()
    {
        QFETCH(QStringList, overwrite);
        QFETCH(QString, destination);
        QFETCH(QSize, left);
        put({u"art-hd/plain.png"_s, u"art-hd/other@2x.png"_s});
        QVERIFY(QFile::link(at(u"art-hd"_s), at(u"link"_s)));
        const LumoraRun run =
            runLumora(QStringList{u"downscale"_s, at(u"art-hd"_s), u"--to"_s, at(destination)} + overwrite);
        QCOMPARE(QImage(at(u"art-hd/plain.png"_s)).size(), left);
        // The other file has another name and is always scaled.
        QCOMPARE(QImage(at(u"art-hd/other.png"_s)).size(), QSize(20, 15));
        QCOMPARE(run.status, overwrite.isEmpty() ? 1 : 0);
        QCOMPARE(run.complaints().size(), overwrite.isEmpty() ? 1 : 0);
        if (overwrite.isEmpty())
            QVERIFY2(run.err.contains("plain.png: is one of the pictures to be scaled down") &&
                         run.err.contains("--overwrite"),
                     run.err.constData());
    }

    void whatIsThereStays_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("replaced");
        QTest::addColumn<QString>("marked");
        QTest::newRow("left as it is") << QStringList{} << 1 << false << QString();
        QTest::newRow("allowed to go") << QStringList{u"--overwrite"_s} << 0 << true << QString();
        QTest::newRow("foreseen") << QStringList{u"--dry-run"_s} << 1 << false << u"a.png (exists, would be left"_s;
        QTest::newRow("foreseen to go") << QStringList{u"--dry-run"_s, u"--overwrite"_s} << 0 << false
                                        << u"a.png (exists, would be replaced)"_s;
    }
    void whatIsThereStays()
    {
        QFETCH(QStringList, options);
        QFETCH(int, status);
        QFETCH(bool, replaced);
        QFETCH(QString, marked);
        put({u"a@2x.png"_s, u"b@2x.png"_s});
        QVERIFY(putFile(at(u"out/a.png"_s), "mine"));
        const LumoraRun run = downscale(QStringList{at(u"a@2x.png"_s), at(u"b@2x.png"_s)} + options);
        QCOMPARE(run.status, status);
        QCOMPARE(contentOfFile(at(u"out/a.png"_s)) != "mine", replaced);
        QCOMPARE(QFile::exists(at(u"out/b.png"_s)), !options.contains(u"--dry-run"_s));
        QCOMPARE(run.err.contains("out/a.png: is there already"), status == 1);
        QVERIFY2(run.out.contains(marked.toUtf8()), run.out.constData());
    }

    void treesKeepTheirFolders()
    {
        put({u"art/z@2x.png"_s, u"art/x/y/c-hd.png"_s, u"art/x/c@2x.png"_s, u"b@2x.png"_s});
        const QStringList arguments{u"downscale"_s, at(u"art"_s), at(u"b@2x.png"_s), u"--out"_s, at(u"art/half"_s)};
        QCOMPARE(runLumora(arguments).status, 0);
        const QStringList tree{u"b.png"_s, u"x/c.png"_s, u"x/y/c.png"_s, u"z.png"_s};
        QCOMPARE(filesBelowFolder(at(u"art/half"_s)), tree);
        // The same tree again; none of the results is a source.
        QCOMPARE(runLumora(arguments + QStringList{u"--overwrite"_s}).status, 0);
        QCOMPARE(filesBelowFolder(at(u"art/half"_s)), tree);
    }

    void ofTwoHalvesOfOneNameNeitherIsLost()
    {
        put({u"art/a-hd.png"_s});
        QVERIFY(putFile(at(u"art/a@2x.png"_s), pictureFile(testPicture(20, 20))));
        const LumoraRun run = downscale({at(u"art"_s)});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.complaints().size(), 1);
        QVERIFY2(run.err.contains(
                     QByteArray("out/a_1.png; that name belongs to the half of " + at(u"art/a-hd.png"_s).toUtf8())),
                 run.err.constData());
        // The first keeps the name, and the other is written, too.
        QCOMPARE(filesBelowFolder(at(u"out"_s)), (QStringList{u"a.png"_s, u"a_1.png"_s}));
        QCOMPARE(QImage(at(u"out/a.png"_s)).size(), QSize(20, 15));
        QCOMPARE(QImage(at(u"out/a_1.png"_s)).size(), QSize(10, 10));
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("named");
        QTest::newRow("no source") << QStringList{u"--to"_s, u"out"_s} << u"SOURCE"_s;
        QTest::newRow("no destination") << QStringList{u"a@2x.png"_s} << u"--to"_s;
        QTest::newRow("an unknown option")
            << QStringList{u"a@2x.png"_s, u"--to"_s, u"out"_s, u"--half"_s} << u"--half"_s;
    }
    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, named);
        put({u"a@2x.png"_s});
        const LumoraRun run = LumoraProcess().in(m_folder->path()).run(QStringList{u"downscale"_s} + arguments);
        QCOMPARE(run.status, 2);
        QCOMPARE(run.out, QByteArray());
        QVERIFY2(run.err.contains(named.toUtf8()), run.err.constData());
        QVERIFY(QDir(at(u"out"_s)).isEmpty());
    }

    void help()
    {
        const LumoraRun run = runLumora({u"downscale"_s, u"--help"_s});
        QCOMPARE(run.status, 0);
        for (const char *option : {"--to", "--overwrite", "--dry-run", "--json", "@2x"})
            QVERIFY(run.out.contains(option));
    }

    void longAndForeignNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("half");
        QTest::newRow("foreign letters") << u"Knöpfe für 日本 🚀 \"quoted\" $HOME@2x.png"_s
                                         << u"Knöpfe für 日本 🚀 \"quoted\" $HOME.png"_s;
        QTest::newRow("a line break") << u"two\nlines@2x.png"_s << u"two\nlines.png"_s;
        QTest::newRow("255 bytes") << QString(248, u'n') + u"@2x.png"_s << QString(248, u'n') + u".png"_s;
        QTest::newRow("deep") << QString(u"abcdefghij/"_s).repeated(60) + u"x-hd.png"_s << u"x.png"_s;
        QTest::newRow("like an option") << u"--to@2x.png"_s << u"--to.png"_s;
        QTest::newRow("nothing but a marker") << u"@2x.png"_s << u".png"_s;
    }
    void longAndForeignNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, half);
        put({u"art/"_s + name});
        const LumoraRun run = downscale({at(u"art/"_s + name), u"--json"_s});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(run.json()[u"files"_s].toArray().at(0).toObject()[u"path"_s].toString(), at(u"out/"_s + half));
        QCOMPARE(filesBelowFolder(at(u"out"_s)), QStringList{half});
    }

    void outputCannotBeWritten()
    {
        put({u"a@2x.png"_s});
        const LumoraRun run = LumoraProcess()
                                  .withOutputTo(u"/dev/full"_s)
                                  .run({u"downscale"_s, at(u"a@2x.png"_s), u"--to"_s, at(u"out"_s)});
        QCOMPARE(run.status, 1);
        QVERIFY(run.err.contains("standard output"));
    }

    void progressOnATerminalOnly()
    {
        put({u"a@2x.png"_s, u"b@2x.png"_s});
        const LumoraRun shown = LumoraProcess().onTerminal().run(
            {u"downscale"_s, at(u"a@2x.png"_s), at(u"b@2x.png"_s), u"--to"_s, at(u"out"_s)});
        QCOMPARE(shown.status, 0);
        QVERIFY(shown.err.contains("1/2 a.png") && shown.err.contains("2/2 b.png"));
        QVERIFY(shown.err.endsWith("\r\033[K"));
    }

    void surroundingsDoNotMatter_data()
    {
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QString>("value");
        QTest::newRow("another scale factor") << u"QT_SCALE_FACTOR"_s << u"2.5"_s;
        QTest::newRow("German") << u"LC_ALL"_s << u"de_DE.UTF-8"_s;
        QTest::newRow("other digits") << u"LC_ALL"_s << u"ar_EG.UTF-8"_s;
        QTest::newRow("the bare locale") << u"LC_ALL"_s << u"C"_s;
        QTest::newRow("one core") << QString() << QString();
    }
    void surroundingsDoNotMatter()
    {
        QFETCH(QString, variable);
        QFETCH(QString, value);
        QStringList sources;
        for (int i = 0; i < 12; ++i) {
            sources << at(u"p%1@2x.png"_s.arg(i));
            QVERIFY(putFile(sources.constLast(), pictureFile(testPicture(50 + 40 * (i % 5), 300 - 20 * i))));
        }
        QCOMPARE(downscale(sources).status, 0);
        QVERIFY(QDir(m_folder->path()).mkdir(u"again"_s));
        LumoraProcess process;
        cpu_set_t before;
        ::sched_getaffinity(0, sizeof before, &before);
        if (variable.isEmpty()) {
            cpu_set_t one;
            CPU_ZERO(&one);
            CPU_SET(::sched_getcpu(), &one);
            ::sched_setaffinity(0, sizeof one, &one);
        } else {
            process.withVariable(variable, value);
        }
        const LumoraRun run = process.run(QStringList{u"downscale"_s, u"--to"_s, at(u"again"_s)} + sources);
        ::sched_setaffinity(0, sizeof before, &before);
        QCOMPARE(run.status, 0);
        QCOMPARE(run.err, QByteArray());
        for (const QString &name : filesBelowFolder(at(u"out"_s)))
            QCOMPARE(contentOfFile(at(u"again/"_s + name)), contentOfFile(at(u"out/"_s + name)));
        QCOMPARE(filesBelowFolder(at(u"again"_s)).size(), sources.size());
    }

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    void put(const QStringList &names) const
    {
        for (const QString &name : names)
            QVERIFY(putFile(at(name), m_picture));
    }
    LumoraRun downscale(const QStringList &arguments) const
    {
        QStringList all{u"downscale"_s, u"--to"_s, at(u"out"_s)};
        for (const QString &argument : arguments)
            all << argument;
        return runLumora(all);
    }
    static QJsonArray withoutLengths(const QJsonObject &result)
    {
        QJsonArray files;
        for (const QJsonValue value : result[u"files"_s].toArray()) {
            QJsonObject file = value.toObject();
            file.remove(u"bytes"_s);
            files << file;
        }
        return files;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_picture;
};

QTEST_GUILESS_MAIN(DownscaleCommandTest)
#include "DownscaleCommandTest.moc"
