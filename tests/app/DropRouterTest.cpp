// SPDX-License-Identifier: MIT
#include "app/DropRouter.h"
#include "ShellFixture.h"
#include "app/sidebar/ITSidebar.h"
#include "app/sidebar/ITSidebarItemCell.h"
#include "app/sidebar/SidebarMatrix.h"
#include "foundation/ToolFacts.h"
#include "foundation/WholeFile.h"
#include "resources/Resources.h"
#include "tool/DropView.h"
#include "tool/PaneSides.h"
#include "tool/style/ElidedLabel.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

constexpr Qt::DropActions fileManagers = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;

/// A drag that ends on the widget; returns whether it was accepted.
bool dropOn(QWidget *widget, const QMimeData &content)
{
    const QPoint middle = widget->rect().center();
    QDragEnterEvent enter(middle, fileManagers, &content, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(QPointF(middle), fileManagers, &content, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &drop);
    return drop.isAccepted();
}

} // namespace

class DropRouterTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void everyKindHasItsTool_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<ToolIndex>("inView");
        QTest::addColumn<bool>("inViewTakesFiles");
        QTest::addColumn<int>("tool");
        using enum ToolIndex;
        QTest::newRow("a package on the icons") << u"/a.ipa"_s << Icons << true << 5;
        QTest::newRow("a package on the colors") << u"/a.ipa"_s << Color << false << 5;
        QTest::newRow("whatever its case") << u"/a.IPA"_s << Icons << true << 5;
        QTest::newRow("a picture on the icons") << u"/a.png"_s << Icons << true << 0;
        QTest::newRow("a picture on the down-scaler is for that") << u"/a.png"_s << Resizer << true << 2;
        QTest::newRow("a picture without a name") << u"/.png"_s << Placeholders << false << 0;
        QTest::newRow("a picture on the placeholders") << u"/a.png"_s << Placeholders << false << 0;
        QTest::newRow("a picture on the package check") << u"/a.png"_s << Validator << true << 0;
        QTest::newRow("another file is for the tool in view to refuse") << u"/a.txt"_s << Icons << true << 0;
        QTest::newRow("another file where none is taken") << u"/a.txt"_s << Devices << false << -1;
        QTest::newRow("a color on the devices") << QString() << Devices << false << 3;
        QTest::newRow("a color on the icons") << QString() << Icons << true << 3;
    }
    void everyKindHasItsTool()
    {
        QFETCH(QString, file);
        QFETCH(ToolIndex, inView);
        QFETCH(bool, inViewTakesFiles);
        QFETCH(int, tool);
        QMimeData content;
        if (file.isEmpty())
            content.setColorData(QColor(Qt::red));
        else
            content.setUrls({QUrl::fromLocalFile(file)});
        const auto found = DropRouter::toolFor(content, static_cast<std::size_t>(inView), inViewTakesFiles);
        QCOMPARE(found ? static_cast<int>(*found) : -1, tool);
    }

    void textIsForNoTool()
    {
        QMimeData content;
        content.setText(u"hello"_s);
        QVERIFY(!DropRouter::toolFor(content, 0, true));
    }

    void aPictureDroppedAnywhereBecomesTheIcon_data()
    {
        QTest::addColumn<int>("inView");
        QTest::addColumn<bool>("onTheDropView");
        QTest::newRow("beside the icons' drop area") << 0 << false;
        QTest::newRow("on the placeholders") << 1 << false;
        QTest::newRow("on the devices") << 4 << false;
        QTest::newRow("on the package check's drop area") << 5 << true;
    }
    void aPictureDroppedAnywhereBecomesTheIcon()
    {
        QFETCH(int, inView);
        QFETCH(bool, onTheDropView);
        const QTemporaryDir folder;
        Application application;
        AppDelegate &delegate = application.delegate;
        delegate.sideBar()->setSelectedIndex(inView);
        QMimeData content;
        content.setUrls({QUrl::fromLocalFile(savePicture(folder, u"mine.png"_s))});
        QWidget *place = delegate.window();
        if (onTheDropView)
            place = delegate.currentController()->view()->findChild<DropView *>();
        QVERIFY(dropOn(place, content));
        QCOMPARE(delegate.sideBar()->selectedIndex(), 0);
        QTRY_COMPARE(application.icons().icon().pixelColor(500, 500), QColor(Qt::magenta));
    }

    void sidesOfTodayTakeTheirDrops_data()
    {
        QTest::addColumn<ToolIndex>("tool");
        QTest::addColumn<bool>("onTheDropView");
        QTest::addColumn<QString>("file");
        QTest::addColumn<ToolIndex>("end"); ///< the tool in view at the end
        QTest::addColumn<QString>("summary");
        using enum ToolIndex;
        const QString screenshot = u"1 picture · no findings"_s;
        const QString plan = u"0 files to write · 1 left out"_s;
        for (const bool onTheDropView : {false, true}) {
            const char *place = onTheDropView ? "on the area" : "beside the area";
            QTest::addRow("screenshots %s", place)
                << Placeholders << onTheDropView << u"shots"_s << Placeholders << screenshot;
            QTest::addRow("a screenshot %s", place)
                << Placeholders << onTheDropView << u"shots/a.png"_s << Placeholders << screenshot;
            QTest::addRow("a folder to scale %s", place) << Resizer << onTheDropView << u"shots"_s << Resizer << plan;
            QTest::addRow("a package on the placeholders %s", place)
                << Placeholders << onTheDropView << u"a.ipa"_s << Validator << QString();
            QTest::addRow("a package on the down-scaler %s", place)
                << Resizer << onTheDropView << u"a.ipa"_s << Validator << QString();
        }
    }
    void sidesOfTodayTakeTheirDrops()
    {
        QFETCH(ToolIndex, tool);
        QFETCH(bool, onTheDropView);
        QFETCH(QString, file);
        QFETCH(ToolIndex, end);
        QFETCH(QString, summary);
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"shots"_s));
        QImage screenshot(1320, 2868, QImage::Format_RGB32);
        screenshot.fill(Qt::darkCyan);
        QVERIFY(screenshot.save(folder.filePath(u"shots/a.png"_s)) &&
                writeWholeFile(folder.filePath(u"a.ipa"_s), "no archive"));
        Application application;
        AppDelegate &delegate = application.delegate;
        delegate.sideBar()->setSelectedIndex(static_cast<qint32>(tool));
        delegate.currentController()->sides()->show(ToolSide::Today);
        QWidget *place = delegate.window();
        if (onTheDropView) {
            for (DropView *view : delegate.currentController()->view()->findChildren<DropView *>()) {
                if (view->isVisible())
                    place = view;
            }
            QVERIFY(place != delegate.window());
        }
        QWidget *pane = delegate.currentController()->view();
        QMimeData content;
        content.setUrls({QUrl::fromLocalFile(folder.filePath(file))});
        QVERIFY(dropOn(place, content));
        QCOMPARE(delegate.sideBar()->selectedIndex(), static_cast<qint32>(end));
        const auto shows = [pane](const QString &text) {
            const auto labels = pane->findChildren<ElidedLabel *>();
            return std::any_of(labels.begin(), labels.end(),
                               [&text](const ElidedLabel *label) { return label->text() == text; });
        };
        if (!summary.isEmpty())
            QTRY_VERIFY(shows(summary));
    }

    void anItemOfTheSidebarTakesDropsForItsTool()
    {
        const QTemporaryDir folder;
        Application application;
        AppDelegate &delegate = application.delegate;
        delegate.sideBar()->setSelectedIndex(4);
        QMimeData content;
        content.setUrls({QUrl::fromLocalFile(savePicture(folder, u"mine.png"_s))});
        QVERIFY(dropOn(delegate.sideBar()->matrix()->cells().at(0), content));
        QCOMPARE(delegate.sideBar()->selectedIndex(), 0);
        QTRY_COMPARE(application.icons().icon().pixelColor(500, 500), QColor(Qt::magenta));
        // The device tool takes no files, so the drop goes where it would go without an item.
        QVERIFY(dropOn(delegate.sideBar()->matrix()->cells().at(4), content));
        QCOMPARE(delegate.sideBar()->selectedIndex(), 0);
    }

    void aDragForAnotherToolMarksItsItem()
    {
        Application application;
        AppDelegate &delegate = application.delegate;
        delegate.sideBar()->setSelectedIndex(4);
        const auto *icons = delegate.sideBar()->matrix()->cells().at(0);
        QMimeData content;
        content.setUrls({QUrl::fromLocalFile(u"/a.png"_s)});
        QDragEnterEvent enter(QPoint(400, 300), fileManagers, &content, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(delegate.window(), &enter);
        QVERIFY(icons->isDropTarget());
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(delegate.window(), &leave);
        QVERIFY(!icons->isDropTarget());
        // The tool in view shows the drag by itself.
        delegate.sideBar()->setSelectedIndex(0);
        QCoreApplication::sendEvent(delegate.window(), &enter);
        QVERIFY(!icons->isDropTarget());
    }

    void whatNoToolTakesIsTurnedAway()
    {
        Application application;
        application.delegate.sideBar()->setSelectedIndex(4);
        QMimeData content;
        content.setUrls({QUrl::fromLocalFile(u"/a.txt"_s)});
        QVERIFY(!dropOn(application.delegate.window(), content));
        QCOMPARE(application.delegate.sideBar()->selectedIndex(), 4);
    }
};

QTEST_MAIN(DropRouterTest)
#include "DropRouterTest.moc"
