// SPDX-License-Identifier: MIT
#include "validator/bundle/WorkFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
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
    void isPrivateAndGoesWithAllItHolds()
    {
        const QTemporaryDir parent;
        const QString before = QDir::currentPath();
        QString path;
        {
            const auto folder = WorkFolder::make(parent.path());
            QVERIFY(folder);
            path = folder.value()->path();
            QCOMPARE(QFileInfo(path).permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther),
                     QFile::Permissions());
            QVERIFY(QDir(path).mkpath(u"Documents/app"_s));
            QVERIFY(QFileInfo(path + u"/Documents/app"_s).isDir());
            QCOMPARE(QDir::currentPath(), before);
        }
        QVERIFY(!QFileInfo::exists(path));
    }

    void isMadeBelowARelativeFolder()
    {
        const QTemporaryDir parent;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(parent.path()));
        const auto folder = WorkFolder::make(u"."_s);
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(folder);
        QVERIFY2(QFileInfo(folder.value()->path()).isDir(), "its path holds wherever the process is");
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

    void saysWhyItCannotBeMade()
    {
        const auto folder = WorkFolder::make(u"/no/such/folder"_s);
        QVERIFY(!folder);
        QCOMPARE(folder.failure().code, FailureCode::CannotCreateFolder);
        QVERIFY(!folder.failure().detail.isEmpty());
    }

    void followsTmpdir()
    {
        const QTemporaryDir parent;
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(parent.path()));
        const auto folder = WorkFolder::make();
        // Restored, since the next test makes its folders there, too.
        before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
        QVERIFY(folder);
        QVERIFY(folder.value()->path().startsWith(parent.path()));
    }
};

QTEST_GUILESS_MAIN(WorkFolderTest)
#include "WorkFolderTest.moc"
