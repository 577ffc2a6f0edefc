// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"
#include "tests/doubles/ScriptedFiles.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// `lumora validate` with the rules of the store.
class StoreValidationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(
            runScript(u"make_rule_packages.py"_s, {m_packages.path(), u"keeps, all"_s, u"seal"_s, u"purpose-likely"_s,
                                                   u"signed not at all"_s, u"unread Info.plist"_s}));
    }

    void endsWithTheStatusThatWasAskedFor_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("status");
        const QString good = u"keeps, all"_s;
        const QString broken = u"seal"_s;
        const QString likely = u"purpose-likely"_s;
        QTest::newRow("nothing found") << good << QStringList() << 0;
        QTest::newRow("the classic checks count when they are asked for")
            << good << QStringList{u"--rules"_s, u"all"_s} << 1;
        QTest::newRow("classic alone") << broken << QStringList{u"--rules"_s, u"classic"_s} << 1;
        QTest::newRow("an error") << broken << QStringList() << 1;
        QTest::newRow("an error that is ignored") << broken << QStringList{u"--ignore"_s, u"push,seal"_s} << 0;
        QTest::newRow("an error that is ignored by its code")
            << broken << QStringList{u"--ignore"_s, u"ITMS-90035"_s} << 0;
        // What was not judged must not pass.
        QTest::newRow("a file that is too large") << u"unread Info.plist"_s << QStringList() << 1;
        QTest::newRow("an error, never mind") << broken << QStringList{u"--fail-on"_s, u"never"_s} << 0;
        QTest::newRow("a warning") << likely << QStringList() << 0;
        QTest::newRow("a warning that counts") << likely << QStringList{u"--fail-on"_s, u"warning"_s} << 1;
        QTest::newRow("another day") << good << QStringList{u"--on"_s, u"2027-06-02"_s} << 1;
        QTest::newRow("no day") << good << QStringList{u"--on"_s, u"2027-02-30"_s} << 2;
        QTest::newRow("no rule") << good << QStringList{u"--ignore"_s, u"no-rule"_s} << 2;
    }
    void endsWithTheStatusThatWasAskedFor()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, options);
        QFETCH(int, status);
        // Without a day of its own a run would judge for the day it happens on.
        if (!options.contains(u"--on"_s))
            options += {u"--on"_s, u"2026-11-22"_s};
        const LumoraRun run = runLumora(QStringList{u"validate"_s, package(name)} + options);
        QVERIFY2(run.status == status, QByteArray(run.out + run.err));
    }

    void ignoresWhatAFileLists()
    {
        QFile list(m_packages.filePath(u"ignored"_s));
        QVERIFY(list.open(QIODevice::WriteOnly));
        list.write("# known\n\npush\n  seal  # until the next build\n");
        list.close();
        const QStringList call{u"validate"_s, package(u"seal"_s), u"--on"_s, u"2026-11-22"_s, u"--ignore-file"_s};
        QCOMPARE(runLumora(call + QStringList{list.fileName()}).status, 0);
        // As for a package that is not there: 1 would say that a rule is broken.
        QCOMPARE(runLumora(call + QStringList{list.fileName() + u"-not-there"_s}).status, 3);
    }

    void printsWhatWhereAndHow()
    {
        const LumoraRun run = runLumora({u"validate"_s, package(u"seal"_s), u"--on"_s, u"2026-11-22"_s});
        const QStringList lines = QString::fromUtf8(run.out).split(u'\n');
        const qsizetype at = lines.indexOf(u"  error    The seal is broken (seal, ITMS-90035)"_s);
        QVERIFY2(at > 0, run.out);
        QCOMPARE(lines.value(at + 1),
                 u"           Payload/Lamp.app/de.lproj/Localizable.strings: was changed after signing"_s);
        QCOMPARE(lines.value(at + 2), u"           Sign the app again after the last change."_s);
        QCOMPARE(lines.value(at + 3), u"  iOS 7 rules"_s);
    }

    void printsEverythingAsJson()
    {
        const QJsonObject report =
            runLumora({u"validate"_s, u"--json"_s, package(u"seal"_s), u"--on"_s, u"2026-11-22"_s}).json();
        QCOMPARE(report[u"schema"_s].toInt(), 2);
        QCOMPARE(report[u"findings"_s],
                 (QJsonArray{QJsonObject{{u"id"_s, u"seal"_s},
                                         {u"code"_s, u"ITMS-90035"_s},
                                         {u"severity"_s, u"error"_s},
                                         {u"title"_s, u"The seal is broken"_s},
                                         {u"path"_s, u"Payload/Lamp.app/de.lproj/Localizable.strings"_s},
                                         {u"evidence"_s, u"was changed after signing"_s},
                                         {u"fix"_s, u"Sign the app again after the last change."_s}}}));
        QCOMPARE(report[u"binaries"_s].toArray().size(), 3);
        const QJsonObject app = report[u"binaries"_s].toArray().at(1).toObject();
        QCOMPARE(app[u"path"_s].toString(), u"Payload/Lamp.app/Lamp"_s);
        QCOMPARE(app[u"architectures"_s].toArray(), QJsonArray{u"arm64"_s});
        QCOMPARE(app[u"platform"_s].toString(), u"ios"_s);
        QCOMPARE(app[u"minimumOS"_s].toString(), u"15.0"_s);
        QCOMPARE(app[u"sdk"_s].toString(), u"26.0"_s);
        QCOMPARE(app[u"uuids"_s].toArray(), QJsonArray{u"00112233-4455-6677-8899-AABBCCDDEEFF"_s});
        const QJsonObject signature = report[u"signature"_s].toObject();
        QCOMPARE(signature[u"verdict"_s].toString(), u"broken"_s);
        QCOMPARE(signature[u"team"_s].toString(), u"TEAM123456"_s);
        QCOMPARE(signature[u"broken"_s].toArray(), QJsonArray{u"Payload/Lamp.app/de.lproj/Localizable.strings"_s});
        const QJsonObject profile = report[u"profile"_s].toObject();
        QCOMPARE(profile[u"kind"_s].toString(), u"app-store"_s);
        QCOMPARE(profile[u"expires"_s].toString(), u"2027-06-01T12:30:00Z"_s);
        QCOMPARE(report[u"catalogIcons"_s].toArray().size(), 4);
    }

    void tellsUnsignedFromBroken()
    {
        const auto verdict = [this](const QString &name) -> QJsonValue {
            const QJsonObject report = runLumora({u"validate"_s, u"--json"_s, package(name)}).json();
            return report[u"signature"_s].toObject().value(u"verdict"_s);
        };
        QCOMPARE(verdict(u"keeps, all"_s), QJsonValue(u"valid"_s));
        QCOMPARE(verdict(u"signed not at all"_s), QJsonValue(u"unsigned"_s));
    }

private:
    QString package(const QString &name) const { return m_packages.filePath(name + u".ipa"_s); }

    QTemporaryDir m_packages;
};

QTEST_GUILESS_MAIN(StoreValidationTest)
#include "StoreValidationTest.moc"
