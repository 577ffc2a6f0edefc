// SPDX-License-Identifier: MIT
#include "validator/bundle/FoundContent.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/bundle/CheckResults.h"

#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class FoundContentTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_no_packages.py"_s, {m_files.path()})); }

    void seesWhatIsThere_data()
    {
        QTest::addColumn<FoundKind>("kind");
        QTest::addColumn<QString>("names");
        QTest::addColumn<qsizetype>("count");
        const auto row = [](const char *name, FoundKind kind, const QString &names = {}, qsizetype count = 0) {
            QTest::newRow(name) << kind << names << count;
        };
        row("nothing at all", FoundKind::Nothing);
        row("a folder", FoundKind::Folder);
        row("a pipe", FoundKind::NoOrdinaryFile);
        row("an empty file", FoundKind::EmptyFile);
        row("a text", FoundKind::Text);
        row("a text cut inside a character", FoundKind::Text);
        row("a picture", FoundKind::Picture);
        row("a photo", FoundKind::Picture);
        row("a document", FoundKind::Document);
        row("a gzip", FoundKind::OtherArchive);
        row("a tar", FoundKind::OtherArchive);
        row("other data", FoundKind::Data);
        row("one zero byte", FoundKind::Data);
        row("an empty archive", FoundKind::EmptyArchive);
        row("an archive cut off", FoundKind::BrokenArchive);
        row("an archive's first bytes", FoundKind::BrokenArchive);
        row("an archive without a payload", FoundKind::ArchiveWithoutApp,
            u"file 0.txt|file 1.txt|file 2.txt|file 3.txt|file 4.txt"_s, 7);
        row("a payload without an app", FoundKind::ArchiveWithoutApp, u"Demo.APP|readme.txt"_s, 2);
        row("an empty payload", FoundKind::ArchiveWithoutApp);
        row("an app that is a file", FoundKind::ArchiveWithoutApp, u"Demo.app"_s, 1);
        row("a payload that is a file", FoundKind::ArchiveWithoutApp, u"Payload"_s, 1);
    }
    void seesWhatIsThere()
    {
        QFETCH(QString, names);
        QFETCH(qsizetype, count);
        const FoundContent found =
            foundContent(m_files.filePath(QString::fromUtf8(QTest::currentDataTag()) + u".ipa"_s));
        QTEST(found.kind, "kind");
        QCOMPARE(found.names.join(u'|'), names);
        QCOMPARE(found.nameCount, count);
    }

    void seesNoFurtherThanTheSystemLetsIt()
    {
        const QString path = m_files.filePath(u"locked.ipa"_s);
        QVERIFY(QFile::copy(m_files.filePath(u"a text.ipa"_s), path));
        QVERIFY(QFile::setPermissions(path, QFileDevice::Permissions()));
        // A user who may read everything gets the text anyway.
        QFile file(path);
        QCOMPARE(foundContent(path).kind, file.open(QIODevice::ReadOnly) ? FoundKind::Text : FoundKind::Unreadable);
    }

    void countsWhatWasJudged_data()
    {
        QTest::addColumn<QList<CheckVerdict>>("verdicts");
        QTest::addColumn<int>("failed");
        QTest::addColumn<int>("judged");
        using V = CheckVerdict;
        QTest::newRow("nothing") << QList<V>{} << 0 << 0;
        QTest::newRow("all well") << QList<V>{V::Passed, V::Passed} << 0 << 2;
        QTest::newRow("two of six") << QList<V>{V::Failed, V::Passed, V::Failed, V::Passed, V::Passed, V::Passed} << 2
                                    << 6;
        QTest::newRow("what is absent counts for nothing") << QList<V>{V::Failed, V::Absent, V::Absent} << 1 << 1;
    }
    void countsWhatWasJudged()
    {
        QFETCH(QList<CheckVerdict>, verdicts);
        QFETCH(int, failed);
        QFETCH(int, judged);
        QList<CheckResult> results;
        for (const CheckVerdict verdict : verdicts)
            results += CheckResult{Check::AppIcons, verdict, {}};
        QVERIFY((sumOf(results) == CheckSum{failed, judged}));
    }

    void takesTheVerdictsFromTheFacts()
    {
        PackageFacts facts;
        facts.appInfoPlist = QVariantMap{{u"CFBundleIdentifier"_s, u"com.example"_s}, {u"FacebookAppID"_s, u"1"_s}};
        facts.provisioningProfile = u"com.other"_s;
        const QList<CheckResult> results = checkResults(facts, {{57, 114}, {QSize(320, 480)}});
        QStringList said;
        for (const CheckResult &result : results)
            said += QString::number(static_cast<int>(result.verdict)) + result.sizes.join(u' ');
        QCOMPARE(said, (QStringList{u"157x57 114x114"_s, u"1320x480"_s, u"1"_s, u"1"_s, u"2"_s, u"0"_s}));
    }

private:
    QTemporaryDir m_files;
};

QTEST_GUILESS_MAIN(FoundContentTest)
#include "FoundContentTest.moc"
