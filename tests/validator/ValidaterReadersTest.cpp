// SPDX-License-Identifier: MIT
#include "ReadPane.h"
#include "resources/Resources.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/doubles/ScriptedFiles.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The pane and the processes that read packages for it, whatever these answer.
class ValidaterReadersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
        qputenv("LC_ALL", "C.UTF-8");
        QVERIFY(runScript(u"make_rule_packages.py"_s, {m_packages.path(), u"keeps, all"_s}));
        QVERIFY(runScript(u"make_packages.py"_s, {m_packages.path()}));
    }

    void endsTheReaderOnCancel()
    {
        ReadPane pane(QString(), script(u"echo $$ > \"$0.pid\"; echo 'read 300'; exec sleep 600"_s));
        pane.tool.dropIpaFileFromDelegate(package("keeps, all"));
        QTRY_COMPARE_WITH_TIMEOUT(pane.ui().readingBar->doubleValue(), 30.0, readingTime);
        QTRY_COMPARE_WITH_TIMEOUT(pane.ui().sumLabel->text(), u"Checking the store's rules… 30 %"_s, readingTime);
        QVERIFY2(pane.ui().readingLoaderField->text().endsWith(u"… 30 %"_s),
                 qPrintable(pane.ui().readingLoaderField->text()));
        const QString process = u"/proc/"_s + QString::fromLatin1(contentOfFile(m_script + u".pid"_s)).trimmed();
        QVERIFY(QFile::exists(process));
        pane.tool.cancelButtonPressed();
        QVERIFY(pane.ui().dropView->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(process), readingTime);
    }

    void saysWhenTheReaderFails_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QByteArray>("note");
        QTest::newRow("a crash") << u"kill -SEGV $$"_s << QByteArray("REVIEW_READER_CRASHED");
        QTest::newRow("a crash in the middle")
            << u"echo 'read 500'; echo 'review 900'; echo '{'; kill -SEGV $$"_s << QByteArray("REVIEW_READER_CRASHED");
        QTest::newRow("silence") << u"exit 0"_s << QByteArray("REVIEW_READER_CRASHED");
        QTest::newRow("a hang") << u"exec sleep 600"_s << QByteArray("REVIEW_READER_STALLED");
        QTest::newRow("a hang in the middle")
            << u"echo 'read 500'; exec sleep 600"_s << QByteArray("REVIEW_READER_STALLED");
        QTest::newRow("noise") << u"exec head -c 1000000 /dev/urandom"_s << QByteArray("REVIEW_READER_CRASHED");
        QTest::newRow("no end") << u"echo 'review 9'; exec yes"_s << QByteArray("REVIEW_READER_CRASHED");
        QTest::newRow("a length past all bounds")
            << u"echo 'review 999999999999'"_s << QByteArray("REVIEW_READER_CRASHED");
        QTest::newRow("an answer that is no review")
            << u"echo 'review 2'; printf '{}'"_s << QByteArray("REVIEW_READER_CRASHED");
    }
    void saysWhenTheReaderFails()
    {
        QFETCH(QString, program);
        QFETCH(QByteArray, note);
        ReadPane pane(QString(), script(program), std::chrono::milliseconds(400));
        pane.read(package("keeps, all"));
        QVERIFY2(pane.ui().noteLabel->accessibleName().contains(qtTrId(note.constData())),
                 qPrintable(pane.ui().noteLabel->accessibleName()));
        QVERIFY2(pane.ui().sumLabel->text().contains(u"checks"), "the classic checks hold all the same");
        QVERIFY(!pane.view().isVisible());
        QVERIFY(!pane.tool.review());
    }

    void saysWhenTheInspectionFails_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QByteArray>("note");
        QTest::newRow("a crash") << u"kill -SEGV $$"_s << QByteArray("VALIDATER_READER_CRASHED");
        QTest::newRow("a crash in the middle")
            << u"echo 'gathered 900'; echo 'x'; kill -SEGV $$"_s << QByteArray("VALIDATER_READER_CRASHED");
        QTest::newRow("silence") << u"exit 0"_s << QByteArray("VALIDATER_READER_CRASHED");
        QTest::newRow("a hang") << u"exec sleep 600"_s << QByteArray("VALIDATER_READER_STALLED");
        QTest::newRow("noise") << u"exec head -c 1000000 /dev/urandom"_s << QByteArray("VALIDATER_READER_CRASHED");
        QTest::newRow("facts that are none")
            << u"echo 'gathered 2'; printf '{}'"_s << QByteArray("VALIDATER_READER_CRASHED");
        QTest::newRow("verdicts without facts")
            << u"echo 'artwork 1'; printf '\240'"_s << QByteArray("VALIDATER_READER_CRASHED");
        QTest::newRow("too little memory") << u"echo 'failure 7'"_s << QByteArray("VALIDATER_READER_CRASHED");
    }
    void saysWhenTheInspectionFails()
    {
        QFETCH(QString, program);
        QFETCH(QByteArray, note);
        ReadPane pane(QString(), script(program, u"--inspect-package"_s), std::chrono::seconds(2));
        pane.tool.dropIpaFileFromDelegate(package("keeps, all"));
        QTRY_VERIFY_WITH_TIMEOUT(opacity(pane.ui().sumLabel) == 1 && opacity(pane.ui().readingBar) == 0, readingTime);
        QCOMPARE(pane.ui().noteLabel->accessibleName(), qtTrId(note.constData()));
        QVERIFY(!pane.ui().checksPart->isVisible());
        QVERIFY(!pane.ui().factsPart->isVisible());
        QVERIFY2(pane.view().isVisible(), "the store's rules were checked all the same");
        QCOMPARE(pane.ui().sumLabel->text(), u"Nothing found"_s);
        QVERIFY(pane.tool.reportText().contains(qtTrId(note.constData())));
        QVERIFY(treeBelow(pane.services.workFolder).isEmpty());
    }

    void saysWhenBothReadersFail_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("notes");
        QTest::newRow("no program") << u"/does/not/exist"_s
                                    << QStringList{u"VALIDATER_READER_NOT_STARTED"_s, u"REVIEW_READER_NOT_STARTED"_s};
        QTest::newRow("an early end") << u"/bin/false"_s
                                      << QStringList{u"VALIDATER_READER_CRASHED"_s, u"REVIEW_READER_CRASHED"_s};
    }
    void saysWhenBothReadersFail()
    {
        QFETCH(QString, program);
        QFETCH(QStringList, notes);
        ReadPane pane(QString(), program);
        pane.tool.dropIpaFileFromDelegate(package("keeps, all"));
        QTRY_VERIFY_WITH_TIMEOUT(opacity(pane.ui().sumLabel) == 1 && opacity(pane.ui().readingBar) == 0, readingTime);
        QCOMPARE(pane.ui().sumLabel->text(), qtTrId("VALIDATER_SUM_UNREAD"));
        const QString note = pane.ui().noteLabel->accessibleName();
        for (const QString &key : notes)
            QVERIFY2(note.contains(qtTrId(key.toLatin1().constData())), qPrintable(note));
        QVERIFY(!pane.view().isVisible());
        QVERIFY(!pane.tool.reportText().contains(u"checks passed"_s));
    }

    void inspectsInAnotherProcess()
    {
        ReadPane pane(package("valid"));
        QVERIFY(pane.tool.facts().provisioningProfile->contains(pane.tool.facts().appBundleIdentifier()));
        const QImage shown = pane.ui().appIconField->pixmap(Qt::ReturnByValue).toImage();
        PaneInWindow here;
        here.tool.dropIpaFileFromDelegate(package("valid"));
        QTRY_VERIFY_WITH_TIMEOUT(here.hasFacts(), readingTime);
        QCOMPARE(here.tool.facts().appInfoPlist, pane.tool.facts().appInfoPlist);
        QCOMPARE(here.tool.facts().appImages, pane.tool.facts().appImages);
        QCOMPARE(here.tool.facts().appLocalizations, pane.tool.facts().appLocalizations);
        QCOMPARE(here.tool.facts().provisioningProfile, pane.tool.facts().provisioningProfile);
        QCOMPARE(here.tool.facts().appContentFolderPath, pane.tool.facts().appContentFolderPath);
        QCOMPARE(here.tool.reportText().section(qtTrId("REVIEW_CLASSIC_RULES"), -1),
                 pane.tool.reportText().section(qtTrId("REVIEW_CLASSIC_RULES"), -1));
        QCOMPARE(shown.convertToFormat(QImage::Format_ARGB32),
                 here.ui().appIconField->pixmap(Qt::ReturnByValue).toImage().convertToFormat(QImage::Format_ARGB32));
    }

    void readsNothingOfThePackageBefore()
    {
        ReadPane pane(package("valid"));
        const QString text = m_work.filePath(u"a text.ipa"_s);
        QVERIFY(putFile(text, "No package."));
        pane.tool.dropIpaFileFromDelegate(text);
        QTRY_COMPARE_WITH_TIMEOUT(pane.ui().sumLabel->text(), qtTrId("VALIDATER_SUM_NO_PACKAGE"), readingTime);
        QVERIFY(!pane.tool.facts().hasApp);
        QTRY_VERIFY_WITH_TIMEOUT(treeBelow(pane.services.workFolder).isEmpty(), readingTime);
    }

    void survivesANonsensicalReview()
    {
        const QString answer = uR"({"verdicts":[{"rule":"no-such-rule","state":1,"evidence":[{}]},)"
                               uR"({"rule":"seal","state":77,"evidence":7}],"kinds":[{"kind":"?","bytes":-5}],)"
                               uR"("bundles":[{"kind":99}],"sizes":[],"json":[]})"_s;
        ReadPane pane(QString(),
                      script(u"echo 'review %1'; printf '%s' '%2'"_s.arg(QString::number(answer.size()), answer)));
        pane.read(package("keeps, all"));
        QVERIFY(pane.tool.review().has_value());
        QCOMPARE(pane.ui().sumLabel->text(), u"Nothing found"_s);
    }

private:
    QString package(const char *name) const { return m_packages.filePath(QString::fromUtf8(name) + u".ipa"_s); }
    /// A program that does this in the place of the reader of this argument; another reader is the real one.
    QString script(const QString &body, const QString &argument = u"--read-package"_s)
    {
        m_script = m_work.filePath(u"reader-%1"_s.arg(++m_scripts));
        QFile file(m_script);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("no script");
        const QString others = u"[ \"$1\" = %1 ] || exec '%2' \"$@\""_s;
        file.write("#!/bin/sh\n" + others.arg(argument, QStringLiteral(LUMORA_WINDOW_PROGRAM)).toUtf8() + '\n' +
                   body.toUtf8() + '\n');
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return m_script;
    }

    QTemporaryDir m_packages;
    QTemporaryDir m_work;
    QString m_script;
    int m_scripts = 0;
};

QTEST_MAIN(ValidaterReadersTest)
#include "ValidaterReadersTest.moc"
