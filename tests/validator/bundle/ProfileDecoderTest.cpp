// SPDX-License-Identifier: MIT
#include "validator/bundle/ProfileDecoder.h"
#include "tests/doubles/LogKeeper.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/archive/FolderSource.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class ProfileDecoderTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_profiles.py"_s, {m_profiles.path()})); }

    void findsTheSignedText_data()
    {
        QTest::addColumn<QString>("contained");
        QTest::newRow("signed") << u"ABCDE12345.com.example.app"_s;
        QTest::newRow("signed, indefinite lengths") << u"ProvisionedDevices"_s;
        QTest::newRow("signed with damaged content") << u"com.exemple.app"_s;
        QTest::newRow("signed, of non-ASCII text") << u"\uFFFD\uFFFDquipe com.example.app"_s;
        QTest::newRow("signed, of utf-16 text") << QString::fromLatin1("c\0o\0m\0.", 7);
    }
    void findsTheSignedText()
    {
        QFETCH(QString, contained);
        const auto text = CmsProfileDecoder().readProvisioningFromPath(path());
        QVERIFY(text);
        QVERIFY2(text->contains(contained), qPrintable(*text));
    }

    void readsIndefiniteLengthsWhole()
    {
        const QString path = m_profiles.filePath(u"signed, indefinite lengths.mobileprovision"_s);
        const auto text = CmsProfileDecoder().readProvisioningFromPath(path);
        QVERIFY(text);
        QCOMPARE(text->count(u"ProvisionedDevices"), 40);
        QVERIFY(text->endsWith(u"</plist>\n"));
    }

    void takesAnythingElseForNoProfile_data()
    {
        QTest::addColumn<int>("unused");
        for (const char *fault : {"signed, of nothing", "signature apart", "encrypted", "pem", "plain xml", "cut off",
                                  "length beyond the end", "noise", "empty", "missing"})
            QTest::newRow(fault) << 0;
    }
    void takesAnythingElseForNoProfile()
    {
        const auto text = CmsProfileDecoder().readProvisioningFromPath(path());
        QVERIFY2(text, "an empty text, not one that was never received");
        QCOMPARE(*text, QString());
    }

    void asksTheSystemsTool()
    {
        const QTemporaryDir folder;
        const QString tool = script(folder, "echo \"$1 $2 $3 $4\"; printf '\\303\\211'; echo noise >&2\n");
        QCOMPARE(SecurityToolProfileDecoder(tool).readProvisioningFromPath(u"/some/profile"_s),
                 std::optional(u"cms -D -i /some/profile\n\uFFFD\uFFFD"_s));
    }

    void keepsWhatAFailingToolSaid()
    {
        const QTemporaryDir folder;
        QCOMPARE(SecurityToolProfileDecoder(script(folder, "exit 1\n")).readProvisioningFromPath(u"/none"_s),
                 std::optional(u""_s));
    }

    void waitsForAToolThatTellsMuch()
    {
        const QTemporaryDir folder;
        const QString tool = script(folder, "head -c 1000000 /dev/zero | tr '\\0' x; sleep 0.2; echo end\n");
        const auto text = SecurityToolProfileDecoder(tool).readProvisioningFromPath(u"/none"_s);
        QVERIFY(text);
        QVERIFY(text->endsWith(u"xend\n"));
        QCOMPARE(text->size(), 1'000'004);
    }

    void readsTheProfileOfAPackage()
    {
        const auto source = FolderSource::open(m_profiles.path(), FolderLayout::Package);
        QVERIFY(source);
        const QString name = u"signed.mobileprovision"_s;
        QCOMPARE(CmsProfileDecoder().readProvisioning(*source.value(), name),
                 CmsProfileDecoder().readProvisioningFromPath(m_profiles.filePath(name)));
        QCOMPARE(CmsProfileDecoder().readProvisioning(*source.value(), u"missing"_s), std::optional(u""_s));
        const QTemporaryDir folder;
        const SecurityToolProfileDecoder tool(script(folder, "echo \"$4\"\n"));
        QCOMPARE(tool.readProvisioning(*source.value(), name), std::optional(m_profiles.filePath(name) + u'\n'));
    }

    void logsWhatAToolPrints()
    {
        QProcess tool;
        tool.start(u"/bin/echo"_s, {u"some words"_s}, QIODevice::ReadOnly);
        QVERIFY(tool.waitForFinished());
        const LogKeeper log;
        SecurityToolProfileDecoder::receivedTaskOutput(tool);
        QCOMPARE(log.lines(), QStringList{u"\n\nOutput:\n\nsome words\n\n\n"_s});
    }

    void receivesNothingWithoutATool()
    {
        QVERIFY(!SecurityToolProfileDecoder(u"/no/such/tool"_s).readProvisioningFromPath(u"/some/profile"_s));
    }

private:
    QString path() const
    {
        return m_profiles.filePath(QString::fromUtf8(QTest::currentDataTag()) + u".mobileprovision"_s);
    }
    static QString script(const QTemporaryDir &folder, const QByteArray &body)
    {
        QFile file(folder.filePath(u"security"_s));
        if (!file.open(QIODevice::WriteOnly))
            return {};
        file.write("#!/bin/sh\n" + body);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file.fileName();
    }

    QTemporaryDir m_profiles;
};

QTEST_GUILESS_MAIN(ProfileDecoderTest)
#include "ProfileDecoderTest.moc"
