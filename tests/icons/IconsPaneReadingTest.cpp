// SPDX-License-Identifier: MIT
#include "IconsPane.h"
#include "tests/doubles/HeldFiles.h"
#include "widgets/buttons/HoverButton.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// The pane with a network share that answers when the test allows it.
struct PaneOverAShare
{
    PaneOverAShare() : share(std::make_shared<HeldFiles>()) { pane.emplace(share); }
    ~PaneOverAShare()
    {
        pane.reset();
        share->releaseAll();
    }
    Q_DISABLE_COPY_MOVE(PaneOverAShare)

    struct Pane
    {
        explicit Pane(const std::shared_ptr<HeldFiles> &share)
            : services(servicesOver(share)), tool(services.services())
        {
            window.resize(900, 660);
            tool.view()->setParent(&window);
            tool.view()->setGeometry(65, 60, 835, 600);
            tool.popupView()->setAnimates(false);
            window.show();
        }
        static RecordingServices servicesOver(const std::shared_ptr<HeldFiles> &share)
        {
            RecordingServices services;
            services.fileReader = share;
            return services;
        }
        RecordingServices services;
        QWidget window;
        IconsViewController tool;
    };

    const Ui::IconsViewController &ui() const { return pane->tool.outlets(); }

    std::shared_ptr<HeldFiles> share;
    std::optional<Pane> pane;
};

} // namespace

class IconsPaneReadingTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_first;
    QString m_second;

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
        m_first = savePicture(m_folder, u"first.png"_s, {1024, 1024});
        m_second = savePicture(m_folder, u"second.png"_s, {1024, 1024});
    }

    void aStalledShareFreezesNothing()
    {
        PaneOverAShare window;
        window.pane->tool.dropViewReceivedFiles({m_first});
        window.share->waitForBegun(1);
        QCOMPARE(window.ui().sourceIconTitle->text(), qtTrId("ICONS_SOURCE_TITLE"));
        QCOMPARE(window.ui().sourceStatus->text(), qtTrId("ICONS_EXAMPLE"));
        // After a while the pane says so, and can be stopped.
        QTRY_VERIFY(!window.ui().stopButton->isHidden());
        QCOMPARE(window.ui().sourceStatus->text(), u"Reading first.png…"_s);
        window.ui().stopButton->click();
        QVERIFY(window.ui().stopButton->isHidden());
        QCOMPARE(window.ui().sourceStatus->text(), qtTrId("ICONS_EXAMPLE"));
    }

    void aPictureThatComesIsTaken()
    {
        PaneOverAShare window;
        window.pane->tool.dropViewReceivedFiles({m_first});
        QTRY_VERIFY(!window.ui().stopButton->isHidden());
        window.share->releaseAll();
        QTRY_COMPARE_WITH_TIMEOUT(window.ui().sourceIconTitle->text(), u"first.png"_s, 30000);
        QVERIFY(window.ui().stopButton->isHidden());
        QCOMPARE(window.ui().sourceStatus->text(), QString());
        QCOMPARE(window.pane->tool.icon().size(), QSize(1024, 1024));
    }

    void aNewerDropWins()
    {
        PaneOverAShare window;
        window.pane->tool.dropViewReceivedFiles({m_first});
        window.pane->tool.dropViewReceivedFiles({m_second});
        window.share->waitForBegun(2);
        window.share->release(m_second);
        QTRY_COMPARE_WITH_TIMEOUT(window.ui().sourceIconTitle->text(), u"second.png"_s, 30000);
        window.share->release(m_first);
        window.pane->tool.dropViewReceivedFiles({m_first});
        QTRY_COMPARE_WITH_TIMEOUT(window.ui().sourceIconTitle->text(), u"first.png"_s, 30000);
    }

    void aPastedPictureWins()
    {
        PaneOverAShare window;
        window.pane->tool.dropViewReceivedFiles({m_first});
        window.share->waitForBegun(1);
        QImage pasted(1024, 1024, QImage::Format_RGB32);
        pasted.fill(Qt::green);
        window.pane->services.clipboard.copiedImage = pasted;
        window.pane->tool.paste();
        window.share->releaseAll();
        QCOMPARE(window.pane->tool.outlets().sourceStatus->text(), QString());
        QCOMPARE(window.ui().sourceIconTitle->text(), qtTrId("ICONS_SOURCE_TITLE"));
        QCOMPARE(window.pane->tool.icon().pixelColor(5, 5), QColor(Qt::green));
    }

    void refusedPicturesAreNamed_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("said");
        QTest::newRow("another size") << savePicture(m_folder, u"small.png"_s, {1000, 900})
                                      << u"small.png: 1000 × 900 pixels"_s;
        QTest::newRow("not there") << m_folder.filePath(u"gone.png"_s) << u"gone.png: does not exist"_s;
        QFile text(m_folder.filePath(u"text.png"_s));
        if (!text.open(QIODevice::WriteOnly) || text.write("text") != 4)
            qFatal("fixture");
        QTest::newRow("a text") << text.fileName() << u"text.png: no picture"_s;
        QTest::newRow("a folder") << m_folder.path() << QFileInfo(m_folder.path()).fileName() + u": is a folder"_s;
    }
    void refusedPicturesAreNamed()
    {
        QFETCH(QString, file);
        IconsPane pane;
        pane.tool.dropViewReceivedFiles({file});
        QTEST(pane.ui.sourceStatus->text(), "said");
        QCOMPARE(pane.popupTitle(), qtTrId("ICONS_ALERT_TITLE"));
        pane.tool.dropViewReceivedFiles({m_first});
        QCOMPARE(pane.ui.sourceStatus->text(), QString());
    }
};

QTEST_MAIN(IconsPaneReadingTest)
#include "IconsPaneReadingTest.moc"
