// SPDX-License-Identifier: MIT
#include "TodayIconPane.h"

#include "foundation/WholeFile.h"
#include "icons/check/IconCheck.h"

#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QListWidget>

using namespace lumora;
using namespace Qt::StringLiterals;

/// From the button to the written sets.
class TodayGenerationTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TodayIconScene> m_scene;
    std::unique_ptr<QTemporaryDir> m_folder;

    TodayIconPane *pane() { return m_scene->pane(); }
    SetGeneration *generation() { return m_scene->tool.today()->generation(); }
    QString out() const { return m_folder->filePath(u"out"_s); }
    bool useIcon(const QImage &picture)
    {
        const QString path = saved(*m_folder, u"icon.png"_s, picture);
        return m_scene->drawnAfter([&] { m_scene->tool.today()->readIcon(path); });
    }
    static QStringList filesBelow(const QString &folder)
    {
        QStringList files;
        QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext())
            files << QDir(folder).relativeFilePath(walk.next());
        files.sort();
        return files;
    }
    /// A minimal Flutter project for the web.
    bool makeProject() const
    {
        const QString web = out() + u"/web/icons"_s;
        return QDir().mkpath(web) && writeWholeFile(out() + u"/pubspec.yaml"_s, "name: app\nflutter:\n  uses: x\n") &&
               writeWholeFile(out() + u"/web/manifest.json"_s, "{}") && writeWholeFile(web + u"/Icon-192.png"_s, "old");
    }

private slots:
    void initTestCase() { installTexts(*QCoreApplication::instance(), QLocale(u"en"_s)); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(out()));
        m_scene = std::make_unique<TodayIconScene>();
        QSignalSpy shown(m_scene->tool.today(), &TodayIcons::previewsShown);
        QVERIFY(shown.wait());
        QVERIFY(useIcon(disk(1024, {200, 30, 60}, {250, 250, 250})));
    }
    void cleanup()
    {
        m_scene.reset();
        m_folder.reset();
    }

    void setsAreWritten_data()
    {
        QTest::addColumn<TodaySet>("set");
        QTest::addColumn<QString>("file");
        QTest::newRow("ios") << TodaySet::Ios << u"iOS/Assets.xcassets/AppIcon.appiconset/Contents.json"_s;
        QTest::newRow("mac") << TodaySet::MacOs << u"macOS/AppIcon.icns"_s;
        QTest::newRow("watch") << TodaySet::WatchOs << u"watchOS/Assets.xcassets/AppIcon.appiconset/Contents.json"_s;
        QTest::newRow("android") << TodaySet::Adaptive << u"Android/ic_launcher-playstore.png"_s;
        QTest::newRow("web") << TodaySet::Web << u"Web/site.webmanifest"_s;
        QTest::newRow("windows") << TodaySet::Windows << u"Windows/app.ico"_s;
        QTest::newRow("linux") << TodaySet::Linux << u"Linux/hicolor/512x512/apps/App.png"_s;
    }
    void setsAreWritten()
    {
        QFETCH(TodaySet, set);
        QFETCH(QString, file);
        pane()->box(set)->click();
        QCOMPARE(pane()->chosenSets(), QList{set});
        QVERIFY(m_scene->generateInto(out()));
        QVERIFY2(QFileInfo::exists(out() + u"/icons/"_s + file), qPrintable(filesBelow(out()).join(u' ')));
        const Result<IconCheck> check = checkIcons(out());
        QVERIFY(check.ok() && !check.value().has(FindingSeverity::Error));
        const JobResult &result = pane()->result()->result();
        QVERIFY2(result.failures.isEmpty(), qPrintable(result.failures.join(u'\n')));
        QCOMPARE(result.folder, out() + u"/icons"_s);
        QCOMPARE(result.summary, u"%1 files in icons"_s.arg(filesBelow(out()).size()));
        QVERIFY(pane()->generateButton()->isVisible());
    }

    void resultSaysWhatWasDerived()
    {
        pane()->box(TodaySet::Adaptive)->click();
        QVERIFY(m_scene->generateInto(out()));
        const QStringList &notes = pane()->result()->result().notes;
        QVERIFY2(notes.contains(u"the foreground is the icon inside the safe zone"_s), qPrintable(notes.join(u'\n')));
        QVERIFY(notes.contains(u"the background is the color of the icon's border (#fafafa)"_s));
    }

    void transparencyIsRefusedWithItsRemedy_data()
    {
        QTest::addColumn<TodaySet>("set");
        QTest::addColumn<bool>("isRefused");
        QTest::newRow("ios") << TodaySet::Ios << true;
        QTest::newRow("watch") << TodaySet::WatchOs << true;
        QTest::newRow("android") << TodaySet::Adaptive << true;
        QTest::newRow("mac") << TodaySet::MacOs << false;
        QTest::newRow("web") << TodaySet::Web << false;
        QTest::newRow("windows") << TodaySet::Windows << false;
        QTest::newRow("linux") << TodaySet::Linux << false;
    }
    void transparencyIsRefusedWithItsRemedy()
    {
        QFETCH(TodaySet, set);
        QFETCH(bool, isRefused);
        QVERIFY(useIcon(disk(1024, {200, 30, 60})));
        pane()->box(set)->click();
        pane()->generateButton()->click();
        QCOMPARE(m_scene->popupTitle(), isRefused ? u"The icon has transparency"_s : QString());
        QCOMPARE(m_scene->services.folderChooser.isOpen(), !isRefused);
        if (!isRefused)
            return;
        m_scene->tool.popupCloseButtonPressed();
        QVERIFY(pane()->flattenField()->isEnabled());
        QVERIFY(m_scene->drawnAfter([&] { pane()->flattenField()->setText(u"navy"_s); }));
        QVERIFY(m_scene->generateInto(out()));
        const QStringList &notes = pane()->result()->result().notes;
        QVERIFY2(notes.contains(u"the icon was put on this color where it must be opaque (#000080)"_s),
                 qPrintable(notes.join(u'\n')));
    }

    void nothingChosenIsRefused()
    {
        pane()->generateButton()->click();
        QCOMPARE(m_scene->popupTitle(), u"No platform chosen"_s);
        const QString before = pane()->snippetSets()->currentText();
        pane()->allButton()->click();
        QCOMPARE(pane()->chosenSets().size(), qsizetype{7});
        QVERIFY2(pane()->snippetSets()->currentText() == before, "no set is the one that was meant");
        pane()->allButton()->click();
        QVERIFY(pane()->chosenSets().isEmpty());
    }

    void unusableNamesAreRefused()
    {
        pane()->box(TodaySet::Linux)->click();
        pane()->nameField()->setText(u"../escape"_s);
        QVERIFY(pane()->nameField()->isRefused());
        pane()->generateButton()->click();
        QCOMPARE(m_scene->popupTitle(), u"App name"_s);
        QVERIFY(!m_scene->services.folderChooser.isOpen());
    }

    void theCountIsShownWhileFilesAreWritten()
    {
        pane()->box(TodaySet::Linux)->click();
        QStringList shown;
        QStringList expected;
        connect(generation(), &SetGeneration::progressed, this, [&](qsizetype number, qsizetype count) {
            shown << pane()->progressLabel()->text();
            expected << u"%1 of %2"_s.arg(number).arg(count);
        });
        QVERIFY(m_scene->generateInto(out()));
        QVERIFY(!shown.isEmpty());
        QCOMPARE(shown, expected);
    }

    void runIsCanceled()
    {
        pane()->allButton()->click();
        QSignalSpy ended(generation(), &SetGeneration::ended);
        // After the first file the rest is not wanted.
        connect(generation(), &SetGeneration::progressed, pane()->cancelButton(), [this] {
            if (pane()->cancelButton()->isVisible())
                pane()->cancelButton()->click();
        });
        pane()->generateButton()->click();
        m_scene->services.folderChooser.confirm(out());
        QVERIFY(pane()->cancelButton()->isVisible());
        QVERIFY(ended.wait(60000));
        QVERIFY(pane()->result()->result().failures.contains(u"Stopped before the end."_s));
        QVERIFY(pane()->generateButton()->isVisible());
        // What was written is whole.
        QVERIFY(filesBelow(out()).size() < 100);
    }

    void folderThatCannotBeWritten()
    {
        pane()->box(TodaySet::Linux)->click();
        QSignalSpy refused(generation(), &SetGeneration::refused);
        pane()->generateButton()->click();
        m_scene->services.folderChooser.confirm(m_folder->filePath(u"missing"_s));
        QVERIFY(refused.wait());
        QCOMPARE(m_scene->popupTitle(), u"What went wrong"_s);
        QVERIFY(pane()->generateButton()->isVisible());
    }

    void projectIsAskedFor_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::newRow("project") << u"project"_s;
        QTest::newRow("own folder") << u"own folder"_s;
        QTest::newRow("cancel") << u"cancel"_s;
        QTest::newRow("escape") << u"escape"_s;
    }
    void projectIsAskedFor()
    {
        QFETCH(QString, answer);
        QVERIFY(makeProject());
        pane()->box(TodaySet::Web)->click();
        QSignalSpy found(generation(), &SetGeneration::projectFound);
        QSignalSpy ended(generation(), &SetGeneration::ended);
        pane()->generateButton()->click();
        m_scene->services.folderChooser.confirm(out());
        QVERIFY(found.wait(60000));
        QTRY_VERIFY(TodayIconScene::question() != nullptr);
        ProjectQuestion *question = TodayIconScene::question();
        QCOMPARE(question->title(), u"Flutter project"_s);
        QVERIFY(question->list()->count() >= 4);
        QCOMPARE(question->list()->findItems(u"replaced: web/icons/Icon-192.png"_s, Qt::MatchExactly).size(),
                 qsizetype{1});
        QCOMPARE(question->list()->findItems(u"new: web/icons/Icon-512.png"_s, Qt::MatchExactly).size(), qsizetype{1});
        // Nothing is written before the answer.
        QCOMPARE(filesBelow(out()).size(), qsizetype{3});
        const qsizetype count = question->list()->count();

        if (answer == u"project")
            question->intoProjectButton()->click();
        else if (answer == u"own folder")
            question->ownFolderButton()->click();
        else if (answer == u"cancel")
            question->cancelButton()->click();
        else
            QTest::keyClick(question->window(), Qt::Key_Escape);
        QVERIFY(!ended.isEmpty() || ended.wait(60000));
        QTRY_VERIFY(TodayIconScene::question() == nullptr);
        QVERIFY(pane()->generateButton()->isVisible());
        const JobResult &result = pane()->result()->result();
        QFile old(out() + u"/web/icons/Icon-192.png"_s);
        QVERIFY(old.open(QIODevice::ReadOnly));
        const bool isReplaced = old.readAll() != "old";
        QCOMPARE(isReplaced, answer == u"project");
        QCOMPARE(QFileInfo::exists(out() + u"/icons/Web/site.webmanifest"_s), answer == u"own folder");
        if (answer == u"project") {
            QCOMPARE(result.summary, u"%1 files in out"_s.arg(count));
            QVERIFY(result.notes.size() > 1);
        } else if (answer != u"own folder") {
            QVERIFY2(result.summary.startsWith(u"Nothing was written"_s), qPrintable(result.summary));
        }
    }

    void lookingAtAProjectIsCanceled()
    {
        QVERIFY(makeProject());
        pane()->box(TodaySet::Web)->click();
        QSignalSpy found(generation(), &SetGeneration::projectFound);
        QSignalSpy ended(generation(), &SetGeneration::ended);
        // With the first file that is compared the run is not wanted any more.
        connect(generation(), &SetGeneration::progressed, pane()->cancelButton(), [this] {
            if (pane()->cancelButton()->isVisible())
                pane()->cancelButton()->click();
        });
        pane()->generateButton()->click();
        m_scene->services.folderChooser.confirm(out());
        QVERIFY(ended.wait(60000));
        QCOMPARE(found.size(), qsizetype{0});
        QVERIFY(TodayIconScene::question() == nullptr);
        QVERIFY(pane()->generateButton()->isVisible());
        const JobResult &result = pane()->result()->result();
        QVERIFY2(result.summary.startsWith(u"Nothing was written"_s), qPrintable(result.summary));
        QCOMPARE(filesBelow(out()).size(), qsizetype{3});
    }

    void whatIsWrittenIntoAProjectIsJudged()
    {
        const QString set = u"ios/App/App/Assets.xcassets/AppIcon.appiconset"_s;
        QVERIFY(QDir().mkpath(out() + u'/' + set) && writeWholeFile(out() + u"/capacitor.config.json"_s, "{}") &&
                writeWholeFile(out() + u'/' + set + u"/Contents.json"_s,
                               "{\"images\":[{\"idiom\":\"universal\",\"platform\":\"iOS\",\"size\":\"1024x1024\","
                               "\"filename\":\"a.png\"}]}"));
        QSignalSpy found(generation(), &SetGeneration::projectFound);
        QSignalSpy ended(generation(), &SetGeneration::ended);
        pane()->box(TodaySet::Ios)->click();
        pane()->generateButton()->click();
        m_scene->services.folderChooser.confirm(out());
        QVERIFY(found.wait(60000));
        QTRY_VERIFY(TodayIconScene::question() != nullptr);
        QCOMPARE(TodayIconScene::question()->list()->count(), 1);
        QCOMPARE(TodayIconScene::question()->accessibleDescription(), u"Put one icon in its place?\n(1 new)"_s);
        TodayIconScene::question()->intoProjectButton()->click();
        QVERIFY(!ended.isEmpty() || ended.wait(60000));
        const QStringList &failures = pane()->result()->result().failures;
        QCOMPARE(failures.size(), qsizetype{1});
        QVERIFY2(failures.first().startsWith(set + u": "_s), qPrintable(failures.first()));
    }

    void closingDuringARunEndsCleanly()
    {
        pane()->allButton()->click();
        QSignalSpy progressed(generation(), &SetGeneration::progressed);
        pane()->generateButton()->click();
        m_scene->services.folderChooser.confirm(out());
        QVERIFY(progressed.wait(60000));
        m_scene.reset();
        for (const QString &file : filesBelow(out())) {
            if (file.endsWith(".png"_L1))
                QVERIFY2(!QImage(out() + u'/' + file).isNull(), qPrintable(file));
        }
    }
};

QTEST_MAIN(TodayGenerationTest)
#include "TodayGenerationTest.moc"
