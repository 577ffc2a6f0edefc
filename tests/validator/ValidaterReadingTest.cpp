// SPDX-License-Identifier: MIT
#include "PaneInWindow.h"
#include "resources/Resources.h"
#include "tests/doubles/ScriptedFiles.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// The longest delay of a timer in the event loop, in milliseconds.
class Heartbeat
{
public:
    Heartbeat()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.callOnTimeout([this] {
            m_longest = std::max(m_longest, m_clock.restart());
            ++m_beats;
        });
        m_clock.start();
        m_timer.start(5);
    }

    qint64 longestGap() const { return m_longest; }
    int beats() const { return m_beats; }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_longest = 0;
    int m_beats = 0;
};

} // namespace

/// The way of a package from its path to the pane, and early ends of a reading.
class ValidaterReadingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
        qputenv("TMPDIR", QFile::encodeName(m_work.path()));
        QVERIFY(runScript(u"make_packages.py"_s, {m_packages.path()}));
        QVERIFY(runScript(u"make_large_package.py"_s, {package(u"large"_s), u"500"_s}));
    }

    void readsInTheBackground()
    {
        PaneInWindow pane;
        pane.tool.dropIpaFileFromDelegate(package(u"valid"_s));
        QCOMPARE(opacity(pane.ui().dropView), 0.0);
        QCOMPARE(opacity(pane.ui().validateInterface), 1.0);
        QCOMPARE(opacity(pane.ui().readingLoaderField), 1.0);
        QCOMPARE(opacity(pane.ui().appNameField), 0.0);
        QCOMPARE(pane.ui().readingLoaderField->text(),
                 qtTrId("VALIDATER_READING").replace("[FILE]"_L1, "valid.ipa"_L1));
        QVERIFY(!pane.ui().browseButton->isEnabled());
        QVERIFY(pane.ui().validAppIconsBox->isEnabled());
        QVERIFY(!pane.ui().validAppIconsBox->isActive());
        QTRY_VERIFY_WITH_TIMEOUT(pane.hasFacts(), readingTime);
    }

    void wrapsALongFileName()
    {
        const QString name(100, u'W');
        QVERIFY(QFile::copy(package(u"valid"_s), package(name)));
        PaneInWindow pane;
        pane.tool.dropIpaFileFromDelegate(package(name));
        QVERIFY(pane.ui().readingLoaderField->minimumSizeHint().width() < pane.tool.view()->width());
        QVERIFY(pane.ui().readingLoaderField->accessibleName().contains(name));
        QTRY_VERIFY_WITH_TIMEOUT(pane.hasFacts(), readingTime);
    }

    void unpacksInTheProcessesPrivateFolder()
    {
        PaneInWindow pane;
        const QString before = QDir::currentPath();
        read(pane, u"leftovers"_s);
        QTRY_COMPARE(treeBelow(pane.folder.value()->path()),
                     (QMap<QString, QString>{{u"Documents"_s, u"/"_s},
                                             {u"Documents/app"_s, u"/"_s},
                                             {u"Documents/app/Symbols"_s, u"/"_s},
                                             {u"Documents/app/Symbols/a.symbols"_s, u"stays"_s}}));
        QCOMPARE(QDir::currentPath(), before);
    }

    void goesBackToTheDropInterface()
    {
        PaneInWindow pane;
        read(pane, u"one icon"_s);
        QTest::mouseClick(pane.ui().resetButton, Qt::LeftButton);
        QCOMPARE(opacity(pane.ui().dropView), 1.0);
        QCOMPARE(opacity(pane.ui().validateInterface), 0.0);
        QCOMPARE(opacity(pane.ui().appNameField), 0.0);
        QVERIFY(pane.ui().appIconField->pixmap(Qt::ReturnByValue).isNull());
        QVERIFY(pane.ui().readingLoaderField->text().isEmpty());
        QVERIFY(pane.ui().browseButton->isEnabled());
        QCOMPARE(pane.ui().validAppIconsBox->currentImage(), pane.ui().validAppIconsBox->idleImage());
        QVERIFY(!pane.ui().validAppIconsBox->isEnabled());
        QVERIFY2(pane.ui().validAppIconsBox->accessibleName().isEmpty(), "its text alone names it again");
        read(pane, u"two apps"_s);
        QVERIFY(pane.ui().appNameField->accessibleName().endsWith(u"Last"));
    }

    void canBePressedWhileItFades()
    {
        PaneInWindow pane;
        pane.tool.dropIpaFileFromDelegate(package(u"valid"_s));
        QTRY_VERIFY_WITH_TIMEOUT(!pane.ui().resetButton->isHidden(), readingTime);
        const QPoint middle = pane.ui().resetButton->mapTo(pane.tool.view(), pane.ui().resetButton->rect().center());
        QCOMPARE(pane.tool.view()->childAt(middle), pane.ui().resetButton);
        pane.ui().resetButton->click();
        QCOMPARE(opacity(pane.ui().dropView), 1.0);
        QTest::qWait(2 * OpacityFade::duration);
        QCOMPARE(opacity(pane.ui().dropView), 1.0);
        QCOMPARE(opacity(pane.ui().validateInterface), 0.0);
    }

    void showsTheLatestOfTwoPackages()
    {
        PaneInWindow pane;
        pane.tool.dropIpaFileFromDelegate(package(u"valid"_s));
        pane.tool.dropIpaFileFromDelegate(package(u"two apps"_s));
        QTRY_VERIFY_WITH_TIMEOUT(pane.hasFacts(), readingTime);
        QCOMPARE(pane.tool.facts().appName(), u"Last"_s);
    }

    void staysWhereABrowsingIsCanceled()
    {
        PaneInWindow pane;
        QTest::mouseClick(pane.ui().browseButton, Qt::LeftButton);
        pane.services.fileChooser.cancel();
        QTest::qWait(ValidaterViewController::browseDelay + 200);
        QCOMPARE(opacity(pane.ui().dropView), 1.0);
        QVERIFY(PopoverAlert::currentAlert() == nullptr);
        QVERIFY(pane.ui().browseButton->isEnabled());
    }

    void takesAPastedPackage()
    {
        PaneInWindow pane;
        pane.services.clipboard.copiedFiles = {package(u"valid"_s)};
        pane.tool.paste();
        QTRY_VERIFY_WITH_TIMEOUT(pane.hasFacts(), readingTime);
    }

    void tellsOnlyOfWhatIsTooMuch_data()
    {
        QTest::addColumn<bool>("told");
        QTest::newRow("valid") << false;
        QTest::newRow("no archive") << false;
        QTest::newRow("cut off") << false;
        QTest::newRow("missing") << false;
        QTest::newRow("a folder") << false;
        QTest::newRow("no app") << false;
        QTest::newRow("too many entries") << true;
    }
    void tellsOnlyOfWhatIsTooMuch()
    {
        QDir(m_packages.path()).mkdir(u"a folder.ipa"_s);
        PaneInWindow pane;
        read(pane, QString::fromUtf8(QTest::currentDataTag()));
        QTEST(pane.tool.validatePopup()->isVisible(), "told");
        if (pane.tool.validatePopup()->isVisible())
            QCOMPARE(pane.explanation(), qtTrId("VALIDATER_STOPPED_MESSAGE"));
    }

    void readsNothingWithoutAFolderToWorkIn()
    {
        PaneInWindow pane(PaneInWindow::Room::None);
        read(pane, u"valid"_s);
        QVERIFY(pane.tool.validatePopup()->isVisible());
        QVERIFY(pane.tool.facts().appName().isEmpty());
        QVERIFY(treeBelow(pane.folder.value()->path()).isEmpty());
        QTest::mouseClick(pane.ui().resetButton, Qt::LeftButton);
        QCOMPARE(opacity(pane.ui().dropView), 1.0);
    }

    void staysLiveOverALargePackage()
    {
        PaneInWindow pane;
        const Heartbeat heartbeat;
        QElapsedTimer clock;
        clock.start();
        pane.tool.dropIpaFileFromDelegate(package(u"large"_s));
        QTRY_COMPARE_WITH_TIMEOUT(pane.tool.facts().appName(), u"Large"_s, 6 * readingTime);
        m_largeReading = clock.elapsed();
        QVERIFY2(heartbeat.beats() > 20, qPrintable(QString::number(heartbeat.beats())));
        // Without a thread of its own the reading is one long gap. With a thread, gaps only come from other tests on
        // the processors; bench_validator measures the gaps without these.
        QVERIFY2(heartbeat.longestGap() < m_largeReading / 2,
                 qPrintable(u"%1 of %2 ms"_s.arg(heartbeat.longestGap()).arg(m_largeReading)));
    }

    void stopsOnePackageForTheNext()
    {
        if (m_largeReading == 0)
            staysLiveOverALargePackage();
        PaneInWindow pane;
        pane.tool.dropIpaFileFromDelegate(package(u"large"_s));
        const QString bundle = pane.folder.value()->path() + u"/Documents/app/Payload/Large.app/"_s;
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(bundle + u"file010"_s), readingTime);
        QElapsedTimer clock;
        clock.start();
        pane.tool.dropIpaFileFromDelegate(package(u"two apps"_s));
        QVERIFY2(pane.ui().readingLoaderField->text().contains(u"two apps.ipa"_s), "the first is not shown any more");
        while (!pane.hasFacts() && clock.elapsed() < readingTime) {
            QTest::qWait(1);
            QVERIFY2(pane.tool.facts().appName() != u"Large"_s, "nothing of the first is shown");
        }
        QCOMPARE(pane.tool.facts().appName(), u"Last"_s);
        QVERIFY2(clock.elapsed() < m_largeReading / 2,
                 qPrintable(u"%1 of %2 ms"_s.arg(clock.elapsed()).arg(m_largeReading)));
        QTRY_VERIFY2(!QFile::exists(bundle), "no file of the first stays among the second's");
    }

    void endsCleanlyInMidRead_data()
    {
        QTest::addColumn<bool>("another");
        QTest::newRow("one package") << false;
        QTest::newRow("while the next one waits") << true;
    }
    void endsCleanlyInMidRead()
    {
        QFETCH(bool, another);
        if (m_largeReading == 0)
            staysLiveOverALargePackage();
        QElapsedTimer clock;
        {
            PaneInWindow pane;
            pane.tool.dropIpaFileFromDelegate(package(u"large"_s));
            const QString bundle = pane.folder.value()->path() + u"/Documents/app/Payload/Large.app/"_s;
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(bundle + u"file010"_s), readingTime);
            QVERIFY2(!QFile::exists(bundle + u"file999"_s), "it has to be in the middle of its reading");
            if (another)
                pane.tool.dropIpaFileFromDelegate(package(u"valid"_s));
            clock.start();
        }
        QVERIFY2(clock.elapsed() < m_largeReading / 2,
                 qPrintable(u"%1 of %2 ms"_s.arg(clock.elapsed()).arg(m_largeReading)));
        QVERIFY2(treeBelow(m_work.path()).isEmpty(), "the work folder goes with the process");
    }

private:
    QString package(const QString &name) const { return m_packages.filePath(name + u".ipa"_s); }
    void read(PaneInWindow &pane, const QString &name)
    {
        pane.tool.dropIpaFileFromDelegate(package(name));
        QTRY_VERIFY_WITH_TIMEOUT(pane.hasFacts(), readingTime);
    }

    QTemporaryDir m_packages;
    QTemporaryDir m_work;
    qint64 m_largeReading = 0; ///< how long the large package takes when it is read to its end, in milliseconds
};

QTEST_MAIN(ValidaterReadingTest)
#include "ValidaterReadingTest.moc"
