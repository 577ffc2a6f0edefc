// SPDX-License-Identifier: MIT
#include "validator/archive/FolderSource.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <map>
#include <mutex>

#include <sys/stat.h>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

void writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(path.first(path.lastIndexOf(u'/')));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QStringList paths(const PackageSource &source)
{
    QStringList list;
    for (const PackageEntry &entry : source.entries())
        list += entry.path + (entry.kind == EntryKind::Folder ? u"/"_s
                              : entry.kind == EntryKind::Link ? u"@"_s
                                                              : u""_s);
    return list;
}

/// Stores the received content under the entry's path.
class Keeper final : public EntryConsumer
{
public:
    struct Seen
    {
        QByteArray bytes;
        qsizetype pieces = 0;
        bool whole = false;
    };
    struct Shared
    {
        std::mutex mutex;
        std::map<QString, Seen> seen;
    };

    Keeper(Shared &shared, QString path) : m_shared(shared), m_path(std::move(path)) {}
    void take(QByteArrayView bytes) override
    {
        m_seen.bytes += bytes;
        ++m_seen.pieces;
    }
    void finish(bool whole) override
    {
        m_seen.whole = whole;
        const std::lock_guard guard(m_shared.mutex);
        m_shared.seen[m_path] = m_seen;
    }

private:
    Shared &m_shared;
    QString m_path;
    Seen m_seen;
};

} // namespace

class FolderSourceTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        const QString app = m_folder->filePath(u"Products/Applications/Demo.app"_s);
        writeFile(app + u"/Info.plist"_s, "list");
        writeFile(app + u"/Base.lproj/Main.nib"_s, "nib");
        writeFile(app + u"/Base lproj"_s, "");
        writeFile(m_folder->filePath(u"Info.plist"_s), "archive");
        QVERIFY(QFile::link(u"/etc/passwd"_s, app + u"/out"_s));
        QVERIFY(QFile::link(u"/etc"_s, app + u"/far"_s));
    }

    void showsTheTreeOfAPackage_data()
    {
        QTest::addColumn<FolderLayout>("layout");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QStringList>("paths");
        const QStringList app{u"Payload/"_s,
                              u"Payload/Demo.app/"_s,
                              u"Payload/Demo.app/Base lproj"_s,
                              u"Payload/Demo.app/Base.lproj/"_s,
                              u"Payload/Demo.app/Base.lproj/Main.nib"_s,
                              u"Payload/Demo.app/Info.plist"_s,
                              u"Payload/Demo.app/far@"_s,
                              u"Payload/Demo.app/out@"_s};
        QTest::newRow("app") << FolderLayout::App << u"Products/Applications/Demo.app"_s << app;
        QTest::newRow("app with a slash") << FolderLayout::App << u"Products/Applications/Demo.app/"_s << app;
        QTest::newRow("archive") << FolderLayout::XcodeArchive << u""_s
                                 << QStringList{u"Info.plist"_s} + app + QStringList{u"Products/"_s};
        QStringList plain;
        for (const QString &path : app)
            plain += path.mid(8);
        QTest::newRow("unpacked") << FolderLayout::Package << u"Products/Applications"_s << plain.mid(1);
    }
    void showsTheTreeOfAPackage()
    {
        QFETCH(FolderLayout, layout);
        QFETCH(QString, folder);
        const auto source = FolderSource::open(m_folder->filePath(folder), layout);
        QVERIFY(source);
        QTEST(paths(*source.value()), "paths");
        for (const PackageEntry &entry : source.value()->entries())
            QCOMPARE(source.value()->find(entry.path), &entry);
    }

    void answersAsAFolder()
    {
        const auto opened = app();
        const PackageSource &source = *opened;
        QCOMPARE(source.names(u"Payload/Demo.app"_s),
                 QStringList({u"Base lproj"_s, u"Base.lproj"_s, u"Info.plist"_s, u"far"_s, u"out"_s}));
        QCOMPARE(source.names(u"Payload/Demo.app/Base.lproj"_s), QStringList(u"Main.nib"_s));
        QCOMPARE(source.names(u"Payload"_s), QStringList(u"Demo.app"_s));
        QCOMPARE(source.names(u""_s), QStringList(u"Payload"_s));
        QCOMPARE(source.names(u"Payload/Demo.app/Info.plist"_s), QStringList());
        QVERIFY(source.isFolder(u"Payload/Demo.app/Base.lproj"_s));
        QVERIFY(!source.isFolder(u"Payload/Demo.app/far"_s));
        QVERIFY(!source.isFolder(u"Payload/Demo.app/Base"_s));
    }

    void readsContent_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("limit");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("failure");
        QTest::newRow("file") << u"Info.plist"_s << 4 << QByteArray("list") << -1;
        QTest::newRow("too large") << u"Info.plist"_s << 3 << QByteArray() << int(FailureCode::TooLarge);
        QTest::newRow("link is its target") << u"out"_s << 100 << QByteArray("/etc/passwd") << -1;
        QTest::newRow("not through a link") << u"far/passwd"_s << 100 << QByteArray() << int(FailureCode::NotFound);
        QTest::newRow("folder") << u"Base.lproj"_s << 100 << QByteArray() << int(FailureCode::IsFolder);
        QTest::newRow("missing") << u"info.plist"_s << 100 << QByteArray() << int(FailureCode::NotFound);
        QTest::newRow("up and out") << u"../Demo.app/Info.plist"_s << 100 << QByteArray() << int(FailureCode::NotFound);
    }
    void readsContent()
    {
        QFETCH(QString, path);
        QFETCH(int, limit);
        QFETCH(int, failure);
        const auto opened = app();
        const auto content = opened->read(u"Payload/Demo.app/"_s + path, limit);
        QCOMPARE(content.ok(), failure < 0);
        if (content)
            QTEST(content.value(), "content");
        else
            QCOMPARE(int(content.failure().code), failure);
    }

    void aFileThatBecomesALinkIsNotFollowed()
    {
        const auto opened = app();
        const QString info = m_folder->filePath(u"Products/Applications/Demo.app/Info.plist"_s);
        QVERIFY(QFile::remove(info));
        QVERIFY(QFile::link(u"/etc/passwd"_s, info));
        QVERIFY(!opened->read(u"Payload/Demo.app/Info.plist"_s, 1 << 20));
    }

    void aFileThatBecomesAPipeIsNotWaitedFor()
    {
        const auto opened = app();
        const QString info = m_folder->filePath(u"Products/Applications/Demo.app/Info.plist"_s);
        QVERIFY(QFile::remove(info));
        QCOMPARE(::mkfifo(QFile::encodeName(info).constData(), 0600), 0);
        QVERIFY(!opened->read(u"Payload/Demo.app/Info.plist"_s, 1 << 20));
    }

    void readsEverythingOnce()
    {
        const QString long_ = m_folder->filePath(u"Products/Applications/Demo.app/long"_s);
        const QByteArray many(PackageSource::wholeEntry + 1, 'x');
        const QByteArray most(PackageSource::wholeEntry, 'y');
        writeFile(long_, many);
        writeFile(long_ + u"est in one piece"_s, most);
        const auto opened = app();
        Keeper::Shared shared;
        const WholeReading reading =
            opened->readAll([&](const PackageEntry &entry) { return std::make_unique<Keeper>(shared, entry.name()); });
        QVERIFY(!reading.failure);
        QCOMPARE(reading.damaged, QStringList());
        QCOMPARE(shared.seen.size(), 7u);
        QVERIFY(
            std::all_of(shared.seen.begin(), shared.seen.end(), [](const auto &seen) { return seen.second.whole; }));
        QCOMPARE(shared.seen[u"Info.plist"_s].bytes, QByteArray("list"));
        QCOMPARE(shared.seen[u"far"_s].bytes, QByteArray("/etc"));
        QCOMPARE(shared.seen[u"long"_s].bytes, many);
        QVERIFY(shared.seen[u"long"_s].pieces > 1);
        QCOMPARE(shared.seen[u"longest in one piece"_s].bytes, most);
        QCOMPARE(shared.seen[u"longest in one piece"_s].pieces, qsizetype(1));
    }

    void stopsAtItsLimits()
    {
        const QString path = m_folder->filePath(u"Products/Applications/Demo.app"_s);
        ExtractionLimits few;
        few.entries = 3;
        const auto short_ = FolderSource::open(path, FolderLayout::App, few);
        QVERIFY(short_);
        QCOMPARE(short_.value()->failure().value().code, FailureCode::TooLarge);

        ExtractionLimits small;
        small.bytes = 10;
        const auto source = FolderSource::open(path, FolderLayout::App, small);
        const WholeReading reading = source.value()->readAll([](const PackageEntry &) { return nullptr; });
        QCOMPARE(reading.failure.value().code, FailureCode::TooLarge);
    }

    void aRequestedStopEndsTheReading()
    {
        std::stop_source stop;
        stop.request_stop();
        Keeper::Shared shared;
        const WholeReading reading =
            app()->readAll([&](const PackageEntry &entry) { return std::make_unique<Keeper>(shared, entry.name()); },
                           stop.get_token());
        QVERIFY(!reading.failure);
        QVERIFY(
            std::none_of(shared.seen.begin(), shared.seen.end(), [](const auto &seen) { return seen.second.whole; }));
    }

private:
    std::unique_ptr<PackageSource> app() const
    {
        auto opened = FolderSource::open(m_folder->filePath(u"Products/Applications/Demo.app"_s), FolderLayout::App);
        return std::move(opened).value();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(FolderSourceTest)
#include "FolderSourceTest.moc"
