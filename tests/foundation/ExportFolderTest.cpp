// SPDX-License-Identifier: MIT
#include "foundation/ExportFolder.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <mutex>
#include <thread>
#include <vector>

using namespace lumora;
using namespace Qt::StringLiterals;

class ExportFolderTest : public QObject
{
    Q_OBJECT

private slots:
    void picksTheFirstFreeName_data()
    {
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QStringList>("brokenLinks");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("nameTaken");

        const QStringList none;
        QTest::newRow("nothing there") << none << none << none << u"icons"_s << false;
        QTest::newRow("the plain name is a folder") << QStringList{u"icons"_s} << none << none << u"icons_1"_s << true;
        QTest::newRow("plain and first number")
            << QStringList{u"icons"_s, u"icons_1"_s} << none << none << u"icons_2"_s << true;
        QTest::newRow("only the first number") << QStringList{u"icons_1"_s} << none << none << u"icons"_s << false;
        QTest::newRow("a gap is used") << QStringList{u"icons"_s, u"icons_2"_s} << none << none << u"icons_1"_s << true;
        QTest::newRow("a file takes the name too") << none << QStringList{u"icons"_s} << none << u"icons_1"_s << true;
        QTest::newRow("a file takes a number too")
            << QStringList{u"icons"_s} << QStringList{u"icons_1"_s} << none << u"icons_2"_s << true;
        QTest::newRow("a broken link takes the name too")
            << none << none << QStringList{u"icons"_s} << u"icons_1"_s << true;
    }
    void picksTheFirstFreeName()
    {
        QFETCH(QStringList, folders);
        QFETCH(QStringList, files);
        QFETCH(QStringList, brokenLinks);
        QFETCH(bool, nameTaken);
        const QTemporaryDir destination;
        for (const QString &folder : std::as_const(folders))
            QVERIFY(QDir(destination.path()).mkdir(folder));
        for (const QString &name : std::as_const(files)) {
            QFile file(destination.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        for (const QString &link : std::as_const(brokenLinks))
            QVERIFY(QFile::link(destination.filePath(u"nowhere"_s), destination.filePath(link)));

        if (nameTaken)
            QTest::ignoreMessage(QtInfoMsg, "Folder exists!");
        const auto made = makeExportFolder(destination.path(), u"icons"_s);
        QVERIFY(made);
        const ExportFolder &folder = made.value();
        QTEST(folder.name(), "name");
        QCOMPARE(folder.nameTaken, nameTaken);
        QCOMPARE(folder.path, QString(destination.path() + u'/' + folder.name()));
        QVERIFY(QFileInfo(folder.path).isDir());
    }

    void runsThatStartTogetherShareNoFolder()
    {
        const QTemporaryDir destination;
        constexpr int threads = 8;
        constexpr int runsPerThread = 25;
        std::mutex mutex;
        QStringList paths;
        {
            std::vector<std::jthread> starters;
            starters.reserve(threads);
            for (int i = 0; i < threads; ++i)
                starters.emplace_back([&] {
                    for (int run = 0; run < runsPerThread; ++run) {
                        const auto folder = makeExportFolder(destination.path(), u"icons"_s);
                        const std::scoped_lock lock(mutex);
                        if (folder)
                            paths += folder.value().path;
                    }
                });
        }
        QCOMPARE(paths.removeDuplicates(), 0);
        QCOMPARE(paths.size(), threads * runsPerThread);
    }

    void saysWhyTheFolderCannotBeMade()
    {
        const QTemporaryDir destination;
        QTest::ignoreMessage(QtInfoMsg, "Folder error: No such file or directory");
        const auto folder = makeExportFolder(destination.filePath(u"missing"_s), u"icons"_s);
        QVERIFY(!folder);
        QCOMPARE(folder.failure(), (Failure{FailureCode::CannotCreateFolder, destination.filePath(u"missing/icons"_s),
                                            u"No such file or directory"_s}));
    }

    void makesOneFolderWithoutParents()
    {
        const QTemporaryDir destination;
        QVERIFY(createFolder(destination.filePath(u"one"_s)));
        QVERIFY(QFileInfo(destination.filePath(u"one"_s)).isDir());
        QVERIFY(!createFolder(destination.filePath(u"missing/two"_s)));
        QVERIFY(!QFileInfo::exists(destination.filePath(u"missing"_s)));
        QCOMPARE(createFolder(destination.filePath(u"one"_s)).failure().code, FailureCode::CannotCreateFolder);
    }
};

QTEST_GUILESS_MAIN(ExportFolderTest)
#include "ExportFolderTest.moc"
