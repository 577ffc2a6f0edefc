// SPDX-License-Identifier: MIT
#include "TodayIconPane.h"

using namespace lumora;
using namespace Qt::StringLiterals;

/// The lines of code for the set that is chosen.
class TodaySnippetsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TodayIconScene> m_scene;

    TodayIconPane *pane() { return m_scene->pane(); }

private slots:
    void initTestCase() { installTexts(*QCoreApplication::instance(), QLocale(u"en"_s)); }
    void init()
    {
        m_scene = std::make_unique<TodayIconScene>();
        QSignalSpy shown(m_scene->tool.today(), &TodayIcons::previewsShown);
        QVERIFY(shown.wait());
    }
    void cleanup() { m_scene.reset(); }

    void snippetsFollowTheChosenSet_data()
    {
        QTest::addColumn<TodaySet>("set");
        QTest::addColumn<QString>("line");
        QTest::newRow("ios") << TodaySet::Ios << u"<key>CFBundleIconName</key>"_s;
        QTest::newRow("mac") << TodaySet::MacOs << u"<key>CFBundleIconFile</key>"_s;
        QTest::newRow("watch") << TodaySet::WatchOs << u"ASSETCATALOG_COMPILER_APPICON_NAME = AppIcon;"_s;
        QTest::newRow("android") << TodaySet::Adaptive << u"android:roundIcon=\"@mipmap/ic_launcher_round\""_s;
        QTest::newRow("web head") << TodaySet::Web << u"<link rel=\"manifest\" href=\"/site.webmanifest\">"_s;
        QTest::newRow("web manifest") << TodaySet::Web << u"\"purpose\": \"maskable\""_s;
        QTest::newRow("windows") << TodaySet::Windows << u"Square44x44Logo=\"Assets\\AppList.png\""_s;
        QTest::newRow("linux") << TodaySet::Linux << u"Icon=Lighthouse"_s;
    }
    void snippetsFollowTheChosenSet()
    {
        QFETCH(TodaySet, set);
        QFETCH(QString, line);
        QVERIFY(m_scene->drawnAfter([&] { pane()->nameField()->setText(u"Lighthouse"_s); }));
        pane()->box(set)->click();
        QVERIFY2(pane()->snippet()->toPlainText().contains(line), qPrintable(pane()->snippet()->toPlainText()));
        pane()->copyButton()->click();
        QCOMPARE(m_scene->services.clipboard.text, pane()->snippet()->toPlainText());
        QCOMPARE(m_scene->popupTitle(), u"Snippet copied"_s);
    }
};

QTEST_MAIN(TodaySnippetsTest)
#include "TodaySnippetsTest.moc"
