// SPDX-License-Identifier: MIT
#include "validator/archive/PackageView.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/archive/FolderSource.h"
#include "validator/archive/OpenPackage.h"
#include "validator/bundle/PackageInspection.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <map>
#include <mutex>

#include <sys/stat.h>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// The content of each entry, by path, from reading the whole package.
class Digests
{
public:
    explicit Digests(const PackageSource &source)
        : reading(source.readAll([this](const PackageEntry &entry) { return std::make_unique<Digest>(*this, entry); }))
    {
    }

private:
    class Digest final : public EntryConsumer
    {
    public:
        Digest(Digests &all, const PackageEntry &entry) : m_all(all), m_path(entry.path) {}
        void take(QByteArrayView bytes) override { m_hash.addData(bytes); }
        void finish(bool) override
        {
            const std::lock_guard guard(m_all.m_mutex);
            m_all.byPath[m_path] = m_hash.result();
        }

    private:
        Digests &m_all;
        QString m_path;
        QCryptographicHash m_hash{QCryptographicHash::Sha256};
    };

    std::mutex m_mutex;

public:
    std::map<QString, QByteArray> byPath;
    WholeReading reading;
};

QStringList paths(const PackageSource &source)
{
    QStringList list;
    for (const PackageEntry &entry : source.entries())
        list += entry.path + (entry.kind == EntryKind::Folder ? u"/"_s : u""_s);
    return list;
}

QString codeAndDetail(const Outcome &outcome)
{
    return outcome
               ? u"none"_s
               : QString(QString::number(static_cast<int>(outcome.failure().code)) + outcome.failure().detail.words());
}

} // namespace

/// Compares the view of an archive with the files that unpacking the archive writes.
class PackageViewTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir(m_files.path()).mkdir(u"archives"_s) && QDir(m_files.path()).mkdir(u"packages"_s));
        QVERIFY(runScript(u"make_archives.py"_s, {m_files.filePath(u"archives"_s)}));
        QVERIFY(runScript(u"make_packages.py"_s, {m_files.filePath(u"packages"_s)}));
    }

    void showsWhatUnpackingLeaves_data()
    {
        QTest::addColumn<QString>("path");
        for (const QString &folder : {u"archives"_s, u"packages"_s}) {
            const QDir place(m_files.filePath(folder));
            for (const QString &name : place.entryList(QDir::Files, QDir::Name))
                QTest::newRow(qPrintable(name)) << place.filePath(name);
        }
    }
    void showsWhatUnpackingLeaves()
    {
        QFETCH(QString, path);
        const QTemporaryDir work;
        const CmsProfileDecoder decoder;
        const InspectionSite site{work.path(), decoder};
        const Extraction extraction = extractPackage(path, site);
        const auto view = PackageView::open(path);
        if (!view) {
            QCOMPARE(codeAndDetail(Outcome(view.failure())), codeAndDetail(extraction.outcome));
            return;
        }
        const QString unpackedTo = work.filePath(extractionFolder);
        QVERIFY(QDir().mkpath(unpackedTo));
        const auto unpacked = FolderSource::open(unpackedTo, FolderLayout::Package);
        QVERIFY(unpacked);
        QCOMPARE(paths(*view.value()), paths(*unpacked.value()));

        const Digests seen(*view.value());
        const Digests onDisk(*unpacked.value());
        for (const auto &[name, digest] : onDisk.byPath)
            QVERIFY2(seen.byPath.at(name) == digest, qPrintable(name));
        QCOMPARE(seen.byPath.size(), onDisk.byPath.size());
        QCOMPARE(seen.reading.damaged, extraction.damagedEntries);
        const Outcome outcome = view.value()->failure() ? Outcome(*view.value()->failure()) : Outcome(Done{});
        QCOMPARE(codeAndDetail(outcome), codeAndDetail(extraction.outcome));
        for (const PackageEntry &entry : view.value()->entries()) {
            const auto one = view.value()->read(entry.path, 1 << 26);
            const auto other = unpacked.value()->read(entry.path, 1 << 26);
            QCOMPARE(one.ok(), other.ok());
            if (one)
                QVERIFY2(one.value() == other.value(), qPrintable(entry.path));
            const auto start = view.value()->readStart(entry.path, 33);
            if (start)
                QVERIFY2(start.value() == one.value().first(qMin<qsizetype>(33, one.value().size())),
                         qPrintable(entry.path));
        }
    }

    void judgesAsTheUnpackedReading_data() { showsWhatUnpackingLeaves_data(); }
    void judgesAsTheUnpackedReading()
    {
        QFETCH(QString, path);
        const QTemporaryDir work;
        const CmsProfileDecoder decoder;
        const PackageReport unpacked = inspectPackage(path, {work.path(), decoder});
        const auto view = PackageView::open(path);
        if (!view) {
            QCOMPARE(codeAndDetail(Outcome(view.failure())), codeAndDetail(reportOutcome(unpacked)));
            return;
        }
        const WholeReading reading = view.value()->readAll([](const PackageEntry &) { return nullptr; });
        const PackageReport inPlace = inspectPackage(*view.value(), reading, decoder);
        QCOMPARE(codeAndDetail(reportOutcome(inPlace)), codeAndDetail(reportOutcome(unpacked)));
        QCOMPARE(inPlace.hasApp, unpacked.hasApp);
        QCOMPARE(inPlace.extraction.damagedEntries, unpacked.extraction.damagedEntries);
        QCOMPARE(inPlace.facts.appContentFolderPath, unpacked.facts.appContentFolderPath);
        QVERIFY(inPlace.facts.appInfoPlist == unpacked.facts.appInfoPlist);
        QCOMPARE(inPlace.facts.appLocalizations, unpacked.facts.appLocalizations);
        QCOMPARE(inPlace.facts.appImages, unpacked.facts.appImages);
        QCOMPARE(inPlace.facts.provisioningProfile, unpacked.facts.provisioningProfile);
        QVERIFY(inPlace.artwork.findings.missingIcons == unpacked.artwork.findings.missingIcons);
        QVERIFY(inPlace.artwork.findings.missingLaunchImages == unpacked.artwork.findings.missingLaunchImages);
        QCOMPARE(inPlace.artwork.appIcon, unpacked.artwork.appIcon);
    }

    void stopsAtItsLimits_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<ExtractionLimits>("limits");
        const ExtractionLimits usual;
        QTest::newRow("entries") << u"three files"_s << ExtractionLimits{usual.bytes, 2, 0};
        QTest::newRow("folders count as entries") << u"three files"_s << ExtractionLimits{usual.bytes, 3, 0};
        QTest::newRow("entries that the directory's end does not own up to")
            << u"count too low"_s << ExtractionLimits{usual.bytes, 0, 0};
        QTest::newRow("bytes") << u"three files"_s << ExtractionLimits{40, usual.entries, 0};
    }
    void stopsAtItsLimits()
    {
        QFETCH(QString, name);
        QFETCH(ExtractionLimits, limits);
        const QString path = m_files.filePath(u"archives/"_s + name + u".zip"_s);
        const auto view = PackageView::open(path, limits);
        QVERIFY(view);
        const WholeReading reading = view.value()->readAll([](const PackageEntry &) { return nullptr; });
        const auto failure = view.value()->failure() ? view.value()->failure() : reading.failure;
        QVERIFY(failure);
        QCOMPARE(failure->code, FailureCode::TooLarge);
    }

    void knowsModesAndLinks()
    {
        const QTemporaryDir folder;
        const QDir place(folder.path());
        QVERIFY(place.mkpath(u"Payload/A.app"_s));
        QFile program(place.filePath(u"Payload/A.app/A"_s));
        QVERIFY(program.open(QIODevice::WriteOnly) && program.setPermissions(QFile::Permissions(0x7055)));
        program.close();
        QVERIFY(QFile::link(u"A"_s, place.filePath(u"Payload/A.app/link"_s)));
        QProcess zip;
        zip.setWorkingDirectory(folder.path());
        zip.start(u"zip"_s, {u"-qry"_s, u"A.ipa"_s, u"Payload"_s});
        QVERIFY(zip.waitForFinished() && zip.exitCode() == 0);
        const auto view = openPackage(place.filePath(u"A.ipa"_s));
        QVERIFY(view);
        const PackageEntry *link = view.value()->find(u"Payload/A.app/link"_s);
        QVERIFY(link != nullptr);
        QCOMPARE(link->kind, EntryKind::Link);
        QCOMPARE(link->linkTarget, u"A"_s);
        QCOMPARE(view.value()->find(u"Payload/A.app/A"_s)->mode, 0755u);
    }

    void opensByTheName_data()
    {
        QTest::addColumn<int>("failure");
        QTest::newRow("valid.ipa") << -1;
        QTest::newRow("Some.app") << -1;
        QTest::newRow("Some.app/") << -1;
        QTest::newRow("Some.xcarchive") << -1;
        QTest::newRow("folder.ipa") << int(FailureCode::IsFolder);
        QTest::newRow("pipe.ipa") << int(FailureCode::NotAnArchive);
        QTest::newRow("file.app") << int(FailureCode::NotAFolder);
        QTest::newRow("missing.ipa") << int(FailureCode::NotFound);
        QTest::newRow("missing.app") << int(FailureCode::NotFound);
        QTest::newRow("no archive.ipa") << int(FailureCode::NotAnArchive);
        QTest::newRow("App.IPA") << int(FailureCode::NotAnArchive);
        QTest::newRow("missing.IPA") << int(FailureCode::NotFound);
    }
    void opensByTheName()
    {
        QFETCH(int, failure);
        const QDir place(m_files.filePath(u"packages"_s));
        for (const QString &folder : {u"Some.app"_s, u"Some.xcarchive"_s, u"folder.ipa"_s})
            place.mkdir(folder);
        ::mkfifo(QFile::encodeName(place.filePath(u"pipe.ipa"_s)).constData(), 0600);
        for (const QString &name : {u"file.app"_s, u"App.IPA"_s}) {
            QFile file(place.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        const auto source = openPackage(place.path() + u'/' + QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(source ? -1 : int(source.failure().code), failure);
    }

private:
    QTemporaryDir m_files;
};

QTEST_GUILESS_MAIN(PackageViewTest)
#include "PackageViewTest.moc"
