// SPDX-License-Identifier: MIT
#include "ReadPane.h"
#include "resources/Resources.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/ReportArea.h"
#include "validator/ReportBody.h"
#include "validator/findings/FindingHeader.h"
#include "validator/findings/FindingRow.h"
#include "validator/findings/FindingWords.h"
#include "validator/findings/FindingsView.h"
#include "validator/findings/ReviewSections.h"
#include "validator/findings/SizeBar.h"
#include "validator/rules/Rule.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/Segment.h"
#include "widgets/buttons/SegmentedControl.h"
#include "widgets/progress/LBProgressBar.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// What the pane says of a package by the rules of today, which another process asks.
class ValidaterFindingsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
        qputenv("LC_ALL", "C.UTF-8");
        QVERIFY(runScript(u"make_rule_packages.py"_s,
                          {m_packages.path(), u"icon-marketing icon-phone icon-pad"_s, u"keeps, all"_s, u"seal more"_s,
                           u"icon-pad"_s, u"icon-pad a JPEG"_s, u"keeps, a Mac app"_s}));
        QVERIFY(runScript(u"make_packages.py"_s, {m_packages.path()}));
    }

    void saysTheSumFirst_data()
    {
        QTest::addColumn<QString>("sum");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("keeps, all") << u"Nothing found"_s << QStringList();
        QTest::newRow("icon-marketing icon-phone icon-pad")
            << u"3 errors"_s << QStringList{u"icon-phone"_s, u"icon-pad"_s, u"icon-marketing"_s};
        QTest::newRow("seal more") << u"1 error"_s << QStringList{u"seal"_s};
    }
    void saysTheSumFirst()
    {
        QFETCH(QStringList, rows);
        ReadPane pane(package(QTest::currentDataTag()));
        QTEST(pane.ui().sumLabel->text(), "sum");
        QStringList ids;
        for (const FindingRow *row : pane.rows())
            ids += QString::fromLatin1(row->rule().id);
        QCOMPARE(ids, rows);
        QCOMPARE(pane.view().emptyLabel()->isVisibleTo(&pane.view()), rows.isEmpty());
        QVERIFY2(pane.tool.reportText().contains(qtTrId("REVIEW_CLASSIC_RULES")), "the classic rows stay");
        const auto top = [&pane](const QWidget *part) { return part->mapTo(pane.tool.view(), QPoint()).y(); };
        QVERIFY2(top(pane.ui().checksPart) > top(&pane.view()), "below the findings");
    }

    void keepsThePageOfAnOldPackage()
    {
        ReadPane pane(package("one icon"));
        QCOMPARE(pane.ui().sumLabel->text(), u"1 of 6 checks failed"_s);
        QVERIFY(!pane.view().isVisible());
        QVERIFY2(pane.tool.reviewSections()->isVisible(), "what else is known of it");
    }

    void aRowSaysHowOften_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("name");
        QTest::newRow("once") << 1 << u"Warning: A use of protected functions is not declared, ITMS-91053"_s;
        QTest::newRow("twice") << 2 << u"Warning: A use of protected functions is not declared, 2 times, ITMS-91053"_s;
    }
    void aRowSaysHowOften()
    {
        QFETCH(const int, count);
        QFETCH(const QString, name);
        const Rule *rule = ruleNamed(u"ITMS-91053"_s);
        QVERIFY(rule != nullptr);
        QCOMPARE(FindingHeader(*rule, count).accessibleName(), name);
    }

    void opensARowInPlace()
    {
        ReadPane pane(package("icon-marketing icon-phone icon-pad"));
        FindingRow *row = &pane.row(0);
        QVERIFY(row->header()->accessibleName().startsWith(u"Error: "));
        QVERIFY(row->header()->accessibleName().endsWith(u"ITMS-90022"));
        QCOMPARE(row->header()->accessibleDescription(), u"closed"_s);
        const int closed = row->sizeHint().height();
        QTest::keyClick(row->header(), Qt::Key_Space);
        QVERIFY(row->header()->isOpen());
        QCOMPARE(row->header()->accessibleDescription(), u"open"_s);
        QVERIFY(row->sizeHint().height() > closed);
        const QStringList texts = textsIn(*row);
        QVERIFY2(texts.contains(u"What was found"_s), qPrintable(texts.join(u'\n')));
        QVERIFY2(texts.join(u'\n').contains(row->places().first().text), "the evidence");
        QTest::keyClick(row->header(), Qt::Key_Return);
        QVERIFY(!row->header()->isOpen());
    }

    void movesByKeys()
    {
        ReadPane pane(package("icon-marketing icon-phone icon-pad"));
        const auto focused = [&](std::size_t index) { return pane.row(index).header()->hasFocus(); };
        pane.rows().front()->header()->setFocus();
        QTRY_VERIFY(focused(0));
        QTest::keyClick(pane.row(0).header(), Qt::Key_Down);
        QTRY_VERIFY(focused(1));
        QTest::keyClick(pane.row(1).header(), Qt::Key_End);
        QTRY_VERIFY(focused(2));
        QTest::keyClick(pane.row(2).header(), Qt::Key_Down);
        QVERIFY(focused(2));
        QTest::keyClick(pane.row(2).header(), Qt::Key_Home);
        QTRY_VERIFY(focused(0));
        int reached = 0;
        for (const FindingRow *row : pane.rows())
            reached += row->header()->focusPolicy() == Qt::StrongFocus ? 1 : 0;
        QCOMPARE(reached, 1);
    }

    void reachesEverythingInTheOrderOfReading()
    {
        ReadPane pane(package("icon-marketing icon-phone icon-pad"));
        pane.row(0).setOpen(true);
        pane.view().search()->setFocus();
        const QList<QWidget *> order{pane.row(0).header(), pane.row(0).iconsButton(), pane.row(0).ignoreButton(),
                                     pane.tool.reviewSections()->modelsButton(), pane.ui().validAppIconsBox};
        for (QWidget *next : order) {
            QTest::keyClick(&pane.window, Qt::Key_Tab);
            QVERIFY2(next->hasFocus(), qPrintable(next->accessibleName()));
        }
    }

    void filtersBySeverityAndWords()
    {
        ReadPane pane(package("icon-marketing icon-phone icon-pad"));
        const auto shown = [&pane] {
            QStringList ids;
            for (const FindingRow *row : pane.rows()) {
                if (row->isVisibleTo(&pane.view()))
                    ids += QString::fromLatin1(row->rule().id);
            }
            return ids.join(u' ');
        };
        pane.view().search()->setText(u"90023"_s);
        QCOMPARE(shown(), u"icon-pad"_s);
        pane.view().search()->setText(u"LARGE icon"_s);
        QCOMPARE(shown(), u"icon-marketing"_s);
        pane.view().search()->setText(u"nothing like it"_s);
        QCOMPARE(shown(), QString());
        QVERIFY(pane.view().emptyLabel()->isVisibleTo(&pane.view()));
        pane.view().search()->clear();
        pane.choose(2);
        QCOMPARE(shown(), QString());
        pane.choose(1);
        QCOMPARE(shown(), u"icon-phone icon-pad icon-marketing"_s);
    }

    void ignoresARuleAndShowsItAgain()
    {
        ReadPane pane(package("icon-marketing icon-phone icon-pad"));
        pane.row(1).setOpen(true);
        pane.row(1).ignoreButton()->click();
        QCOMPARE(pane.rows().size(), std::size_t(2));
        QCOMPARE(pane.ui().sumLabel->text(), u"2 errors"_s);
        QVERIFY(!pane.tool.reportText().contains(u"ITMS-90023"));
        // Also in the next package.
        pane.read(package("icon-marketing icon-phone icon-pad"));
        QCOMPARE(pane.ui().sumLabel->text(), u"2 errors"_s);
        QVERIFY(pane.view().restoreButton()->isVisibleTo(&pane.view()));
        pane.view().restoreButton()->click();
        QCOMPARE(pane.ui().sumLabel->text(), u"3 errors"_s);
        QVERIFY(!pane.view().restoreButton()->isVisibleTo(&pane.view()));
    }

    void savesTheReportWithoutIgnoredRules()
    {
        const QTemporaryDir folder;
        ReadPane pane(package("icon-marketing icon-phone icon-pad"));
        pane.row(1).setOpen(true);
        pane.row(1).ignoreButton()->click();
        for (const QString &name : {u" report"_s, u" report 2"_s}) {
            pane.view().saveButton()->click();
            QVERIFY(pane.services.folderChooser.isOpen());
            pane.services.folderChooser.confirm(folder.path());
            const QString base = folder.filePath(u"icon-marketing icon-phone icon-pad"_s + name);
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(base + u".json"_s), readingTime);
            QTRY_COMPARE_WITH_TIMEOUT(pane.view().saveButton()->text(), qtTrId("FINDINGS_SAVED"), readingTime);
            const QJsonArray findings =
                QJsonDocument::fromJson(contentOfFile(base + u".json"_s))[u"findings"_s].toArray();
            QCOMPARE(findings.size(), 2);
            QCOMPARE(findings[0][u"id"_s].toString(), u"icon-phone"_s);
            const QByteArray page = contentOfFile(base + u".html"_s);
            QVERIFY(page.contains("icon-marketing") && page.contains("ITMS-90022"));
            QVERIFY(!page.contains("ITMS-90023"));
        }
    }

    void saysWhatCouldNotBeSaved()
    {
        ReadPane pane(package("keeps, all"));
        pane.view().saveButton()->click();
        pane.services.folderChooser.confirm(u"/proc"_s);
        QTRY_VERIFY_WITH_TIMEOUT(PopoverAlert::currentAlert() != nullptr, readingTime);
        QCOMPARE(PopoverAlert::currentAlert()->messageText, qtTrId("FINDINGS_NOT_SAVED"));
    }

    void handsIconsAndModelsOn()
    {
        ReadPane pane(package("icon-marketing icon-phone icon-pad"));
        QSignalSpy icons(&pane.tool, &ValidaterViewController::iconsWanted);
        QSignalSpy models(&pane.tool, &ValidaterViewController::modelsWanted);
        pane.row(0).setOpen(true);
        pane.row(0).iconsButton()->click();
        QTRY_COMPARE_WITH_TIMEOUT(icons.size(), 1, readingTime);
        QVERIFY2(icons[0][0].toString().isEmpty(), "the package has no picture");
        pane.tool.reviewSections()->modelsButton()->click();
        QCOMPARE(models.size(), 1);
        QCOMPARE(models[0][0].value<DeviceDemands>().minimumSystem, u"15.0"_s);
    }

    void handsThePackagesOwnPictureOn()
    {
        ReadPane pane(package("icon-pad a JPEG"));
        QSignalSpy icons(&pane.tool, &ValidaterViewController::iconsWanted);
        pane.row(0).setOpen(true);
        QVERIFY(!textsIn(pane.row(0)).contains(qtTrId("FINDINGS_PACKED_ICON")));
        pane.row(0).iconsButton()->click();
        QTRY_COMPARE_WITH_TIMEOUT(icons.size(), 1, readingTime);
        const QImage picture(icons[0][0].toString());
        QCOMPARE(picture.size(), QSize(1024, 1024));
        QCOMPARE(picture.pixelColor(1000, 1000), QColor(128, 128, 128));
    }

    void saysWhyItHasNoPicture()
    {
        ReadPane pane(package("icon-pad"));
        QSignalSpy icons(&pane.tool, &ValidaterViewController::iconsWanted);
        pane.row(0).setOpen(true);
        QVERIFY(textsIn(pane.row(0)).contains(qtTrId("FINDINGS_PACKED_ICON")));
        pane.row(0).iconsButton()->click();
        QTRY_COMPARE_WITH_TIMEOUT(icons.size(), 1, readingTime);
        QVERIFY(icons[0][0].toString().isEmpty());
    }

    void offersNoModelsForAnotherDevice()
    {
        ReadPane pane(package("keeps, a Mac app"));
        QVERIFY(!pane.tool.reviewSections()->modelsButton()->isVisibleTo(pane.tool.reviewSections()));
        pane.read(package("keeps, all"));
        QVERIFY(pane.tool.reviewSections()->modelsButton()->isVisibleTo(pane.tool.reviewSections()));
    }

    void tellsWhatElseIsKnown()
    {
        ReadPane pane(package("keeps, all"));
        const QString text = pane.tool.reviewSections()->lines().join(u'\n');
        for (const QString &part :
             {u"Signature: valid"_s, u"Profile: for the App Store"_s, u"expires in "_s,
              u"Bulb.framework: framework, com.example.bulb"_s, u"does not track people"_s, u"UserDefaults (CA92.1)"_s})
            QVERIFY2(text.contains(part), qPrintable(part + u" in\n"_s + text));
        QVERIFY(pane.tool.reviewSections()->sizeBar()->words().startsWith(u"Code "));
        QVERIFY(pane.tool.reportText().contains(u"Signature: valid"));
    }

    void writesDaysOut_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("text");
        QTest::newRow("British") << QLocale(u"en_GB"_s) << u"expires in 41 days (3 February 2027)"_s;
        QTest::newRow("American") << QLocale(u"en_US"_s) << u"expires in 41 days (February 3, 2027)"_s;
        QTest::newRow("German") << QLocale(u"de_DE"_s) << u"expires in 41 days (3. Februar 2027)"_s;
        QTest::newRow("Hungarian") << QLocale(u"hu_HU"_s) << u"expires in 41 days (2027. február 3.)"_s;
        QTest::newRow("Japanese") << QLocale(u"ja_JP"_s) << u"expires in 41 days (2027年2月3日)"_s;
    }
    void writesDaysOut()
    {
        QFETCH(const QLocale, locale);
        const auto restore = qScopeGuard([old = QLocale()] { QLocale::setDefault(old); });
        QLocale::setDefault(locale);
        const QDateTime day(QDate(2027, 2, 3), QTime(12, 0));
        QTEST(expiryText(day, day.addDays(-41)), "text");
    }

    void anOpenedFindingComesIntoView_data()
    {
        QTest::addColumn<std::size_t>("index");
        QTest::newRow("first") << std::size_t{0};
        QTest::newRow("last") << std::size_t{2};
    }
    void anOpenedFindingComesIntoView()
    {
        QFETCH(std::size_t, index);
        ReadPane pane(package("icon-marketing icon-phone icon-pad"));
        ReportArea *area = pane.ui().reportArea;
        FindingRow &row = pane.row(index);
        area->ensureWidgetVisible(&row, 0, 0);
        QTest::keyClick(row.header(), Qt::Key_Space);
        QTRY_VERIFY(row.height() > 2 * row.header()->height());
        const auto isInView = [&] {
            const QRect place(row.mapTo(area->viewport(), QPoint()), row.size());
            return place.top() >= 0 && place.bottom() < area->viewport()->height();
        };
        QTRY_VERIFY(isInView());
    }

    void replacesTheFirstPackage()
    {
        ReadPane pane(package("seal more"));
        pane.tool.dropIpaFileFromDelegate(package("icon-marketing icon-phone icon-pad"));
        pane.tool.dropIpaFileFromDelegate(package("keeps, all"));
        QVERIFY2(!pane.view().isVisible(), "nothing of the last package");
        QTRY_COMPARE_WITH_TIMEOUT(pane.ui().sumLabel->text(), u"Nothing found"_s, readingTime);
        QVERIFY(pane.rows().empty());
    }

    void saysWhatANoPackageIs()
    {
        const QString path = m_packages.filePath(u"picture.ipa"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("%PDF-1.4") > 0);
        file.close();
        ReadPane pane;
        pane.tool.dropIpaFileFromDelegate(path);
        QTRY_COMPARE_WITH_TIMEOUT(pane.ui().sumLabel->text(), qtTrId("VALIDATER_SUM_NO_PACKAGE"), readingTime);
        QVERIFY(pane.tool.found() && pane.tool.found()->kind == FoundKind::Document);
    }

private:
    static QStringList textsIn(const FindingRow &row)
    {
        QStringList texts;
        for (const QLabel *label : row.findChildren<QLabel *>())
            texts += label->accessibleName().isEmpty() ? label->text() : label->accessibleName();
        return texts;
    }
    QString package(const char *name) const { return m_packages.filePath(QString::fromUtf8(name) + u".ipa"_s); }
    QTemporaryDir m_packages;
};

QTEST_MAIN(ValidaterFindingsTest)
#include "ValidaterFindingsTest.moc"
