// SPDX-License-Identifier: MIT
#include "validator/bundle/WorkFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>

using namespace lumora;
using namespace Qt::StringLiterals;

class WorkFolderTest : public QObject
{
    Q_OBJECT

private slots:
    void isPrivateCurrentAndGoesWithAllItHolds()
    {
        const QTemporaryDir parent;
        qputenv("TMPDIR", QFile::encodeName(parent.path()));
        QString path;
        {
            QVERIFY(QDir::setCurrent(parent.path()));
            const auto folder = WorkFolder::makeCurrent();
            QVERIFY(folder);
            path = folder.value()->path();
            QCOMPARE(QFileInfo(path).permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther),
                     QFile::Permissions());
            QCOMPARE(QDir::currentPath(), QDir(path).canonicalPath());
            QVERIFY(QDir().mkpath(u"Documents/app"_s));
            QVERIFY(QFileInfo(path + u"/Documents/app"_s).isDir());
        }
        QVERIFY(!QFileInfo::exists(path));
        QCOMPARE(QDir::currentPath(), QDir(parent.path()).canonicalPath());
    }

    void goesToTheRootWhereTheFolderItCameFromIsGone()
    {
        const QTemporaryDir parent;
        const QTemporaryDir before;
        qputenv("TMPDIR", QFile::encodeName(parent.path()));
        QVERIFY(QDir::setCurrent(before.path()));
        {
            const auto folder = WorkFolder::makeCurrent();
            QVERIFY(folder);
            QVERIFY(QDir(before.path()).removeRecursively());
        }
        QCOMPARE(QDir::currentPath(), u"/"_s);
    }

    void isNotWhereOtherProgramsBegin()
    {
        // As the desktop's program for web pages is started, which may run longer than this one.
        const QTemporaryDir parent;
        const QTemporaryDir before;
        qputenv("TMPDIR", QFile::encodeName(parent.path()));
        QVERIFY(QDir::setCurrent(before.path()));
        const QString told = parent.filePath(u"where"_s);
        {
            const auto folder = WorkFolder::makeCurrent();
            QVERIFY(folder);
            QVERIFY(
                QProcess::startDetached(u"/bin/sh"_s, {u"-c"_s, u"pwd -P > \"$0.new\"; mv \"$0.new\" \"$0\""_s, told}));
            QTRY_VERIFY(QFile::exists(told));
        }
        QFile file(told);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(QFile::decodeName(file.readAll()).trimmed(), QDir(before.path()).canonicalPath());
        QDir::setCurrent(u"/"_s);
    }

    void leavesTheCurrentFolderAloneWhereItIsAnother()
    {
        const QTemporaryDir parent;
        QVERIFY(QDir::setCurrent(parent.path()));
        QVERIFY(WorkFolder::make(u"."_s));
        QCOMPARE(QDir::currentPath(), QDir(parent.path()).canonicalPath());
        QVERIFY(QDir(parent.path()).isEmpty());
        QDir::setCurrent(u"/"_s);
    }

    void removesWhatAKilledProcessLeft_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("inUse");
        QTest::addColumn<bool>("removed");
        QTest::newRow("left behind") << u"lumora-work-abcdef"_s << false << true;
        QTest::newRow("in use") << u"lumora-work-abcdef"_s << true << false;
        QTest::newRow("of another program") << u"other-work-abcdef"_s << false << false;
    }
    void removesWhatAKilledProcessLeft()
    {
        QFETCH(QString, name);
        QFETCH(bool, inUse);
        const QTemporaryDir parent;
        QVERIFY(QDir(parent.path()).mkpath(name + u"/Documents/app"_s));
        const FileDescriptor other(::open(QFile::encodeName(parent.filePath(name)).constData(), O_RDONLY));
        if (inUse)
            QCOMPARE(::flock(other.number(), LOCK_EX | LOCK_NB), 0);
        QVERIFY(WorkFolder::make(parent.path()));
        QTEST(!QFileInfo::exists(parent.filePath(name)), "removed");
    }

    void leavesLinksAlone()
    {
        const QTemporaryDir parent;
        const QTemporaryDir target;
        QVERIFY(QDir(target.path()).mkpath(u"precious"_s));
        QVERIFY(QFile::link(target.path(), parent.filePath(u"lumora-work-abcdef"_s)));
        QVERIFY(WorkFolder::make(parent.path()));
        QVERIFY(QFileInfo::exists(target.filePath(u"precious"_s)));
    }

    void tellsWhereItCannotBe()
    {
        const auto folder = WorkFolder::make(u"/no/such/folder"_s);
        QVERIFY(!folder);
        QCOMPARE(folder.failure().code, FailureCode::CannotCreateFolder);
        QVERIFY(!folder.failure().detail.isEmpty());
    }

    void followsTmpdir()
    {
        const QTemporaryDir parent;
        qputenv("TMPDIR", QFile::encodeName(parent.path()));
        const auto folder = WorkFolder::make();
        QVERIFY(folder);
        QVERIFY(folder.value()->path().startsWith(parent.path()));
    }
};

QTEST_GUILESS_MAIN(WorkFolderTest)
#include "WorkFolderTest.moc"
