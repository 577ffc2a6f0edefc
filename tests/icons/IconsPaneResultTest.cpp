// SPDX-License-Identifier: MIT
#include "IconsPane.h"
#include "tool/JobResultView.h"
#include "widgets/buttons/HoverButton.h"

#include <QScrollArea>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

class IconsPaneResultTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void aPlatformExportSaysWhatItLeft()
    {
        const QTemporaryDir folder;
        IconsPane pane;
        pane.ui.webTouchCheckbox->click();
        pane.ui.favIconCheckbox->click();
        QVERIFY(pane.ui.resultView->isHidden());
        pane.exportTo(folder.path());
        QTRY_VERIFY_WITH_TIMEOUT(!pane.ui.resultView->isHidden(), 30000);
        QVERIFY(pane.isDone());
        const QString name = QFileInfo(folder.path()).fileName();
        QCOMPARE(pane.ui.resultView->text(),
                 u"%1 icons in %2/icons"_s.arg(WebTouchIcons.size() + FavIcons.size()).arg(name));
        pane.ui.resultView->showButton()->click();
        QCOMPARE(pane.services.fileManager.shown, QStringList{folder.filePath(u"icons"_s)});
        pane.ui.resultView->copyButton()->click();
        QCOMPARE(pane.services.clipboard.text, folder.filePath(u"icons"_s));
        // It stays when the caption has gone, until the next job.
        pane.letTimePass();
        QVERIFY(!pane.ui.resultView->isHidden());
        pane.exportTo(folder.path());
        QVERIFY(pane.ui.resultView->isHidden());
        QTRY_VERIFY_WITH_TIMEOUT(!pane.ui.resultView->isHidden(), 30000);
        QVERIFY(pane.ui.resultView->text().endsWith(name + u"/icons_1"_s));
    }

    void aCustomIconSaysWhereItIs()
    {
        const QTemporaryDir folder;
        IconsPane pane;
        pane.ui.customIconSizeTextField->setString(u"64"_s);
        pane.ui.generateCustomButton->click();
        pane.services.folderChooser.confirm(folder.path());
        QCOMPARE(pane.ui.resultView->text(), u"1 icon in %1/icons"_s.arg(QFileInfo(folder.path()).fileName()));
    }

    void anExportThatWroteNothingSaysSoOnce_data()
    {
        QTest::addColumn<bool>("custom");
        QTest::newRow("platforms") << false;
        QTest::newRow("one icon") << true;
    }
    void anExportThatWroteNothingSaysSoOnce()
    {
        QFETCH(bool, custom);
        IconsPane pane;
        pane.ui.favIconCheckbox->click();
        pane.ui.customIconSizeTextField->setString(u"64"_s);
        if (custom) {
            pane.ui.generateCustomButton->click();
            pane.services.folderChooser.confirm(u"/proc/nowhere"_s);
        } else {
            pane.exportTo(u"/proc/nowhere"_s);
            QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 30000);
        }
        const JobResult result = pane.ui.resultView->result();
        QCOMPARE(result.summary, u"Nothing was written to nowhere/icons"_s);
        QCOMPARE(result.failures.size(), 1);
        QVERIFY2(result.failures.first().startsWith(u"icons: could not be created ("_s),
                 qPrintable(result.failures.first()));
        QVERIFY(pane.ui.resultView->showButton()->isHidden());
        QCOMPARE(pane.popupTitle(), QString());
    }

    void failuresHaveRoomInTheSmallestWindow()
    {
        IconsPane pane;
        QVERIFY(QTest::qWaitForWindowExposed(&pane.window));
        pane.ui.resultView->setResult({u"4 of 51 icons"_s, u"/out"_s, {u"a"_s, u"b"_s, u"c"_s, u"d"_s}});
        QTRY_VERIFY(pane.ui.resultView->height() >= pane.ui.resultView->sizeHint().height());
        const QRect area = pane.ui.resultView->geometry();
        QVERIFY(pane.tool.view()->rect().contains(area));
        QVERIFY(pane.ui.snippetPanel->geometry().bottom() < area.top());
        QVERIFY(pane.ui.dropView->geometry().bottom() < area.top());
        const QRect button = pane.ui.resultView->showButton()->geometry();
        QVERIFY(!button.intersects(pane.ui.resultView->findChild<QScrollArea *>()->geometry()));
    }

    void withoutASourceThereIsAMessageAlready()
    {
        const QTemporaryDir folder;
        IconsPane pane;
        pane.ui.favIconCheckbox->click();
        pane.ui.generateIconsButton->click();
        pane.tool.setIcon({});
        pane.services.folderChooser.confirm(folder.path());
        QTRY_VERIFY_WITH_TIMEOUT(pane.isDone(), 30000);
        QVERIFY(pane.ui.resultView->isHidden());
    }
};

QTEST_MAIN(IconsPaneResultTest)
#include "IconsPaneResultTest.moc"
