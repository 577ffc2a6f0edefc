// SPDX-License-Identifier: MIT
#include "tool/DropView.h"
#include "foundation/Log.h"
#include "tool/DropHighlight.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

struct RecordingDelegate : DropViewDelegate
{
    void dropViewReceivedFiles(const QStringList &files) override { received << files; }
    void dropViewReceivedColor(const QColor &color) override { colors << color; }

    QList<QStringList> received;
    QList<QColor> colors;
};

struct SilentDelegate : DropViewDelegate
{
};

void fill(QMimeData &mimeData, const QStringList &paths, bool withColor = false)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls << QUrl::fromLocalFile(path);
    mimeData.setUrls(urls);
    if (withColor)
        mimeData.setColorData(QColor(Qt::red));
}

constexpr DragOperation copyOp = DragOperation::Copy;
constexpr DragOperation linkOp = DragOperation::Link;
constexpr DragOperation genericOp = DragOperation::Generic;

} // namespace

class DropViewTest : public QObject
{
    Q_OBJECT

private slots:
    void entry_data()
    {
        QTest::addColumn<bool>("color");
        QTest::addColumn<bool>("files");
        QTest::addColumn<DragOperations>("mask");
        QTest::addColumn<DragOperation>("expected");
        const DragOperations all = copyOp | linkOp | genericOp;
        QTest::newRow("files with everything: link") << false << true << all << linkOp;
        QTest::newRow("files with link only: link") << false << true << DragOperations(linkOp) << linkOp;
        QTest::newRow("files with copy only: copy") << false << true << DragOperations(copyOp) << copyOp;
        QTest::newRow("files with generic only: none")
            << false << true << DragOperations(genericOp) << DragOperation::None;
        QTest::newRow("files with nothing: none") << false << true << DragOperations() << DragOperation::None;
        QTest::newRow("color and files with everything: generic") << true << true << all << genericOp;
        QTest::newRow("color and files without generic: link")
            << true << true << DragOperations(copyOp | linkOp) << linkOp;
        QTest::newRow("color alone with generic: generic") << true << false << DragOperations(genericOp) << genericOp;
        QTest::newRow("color alone without generic: none")
            << true << false << DragOperations(linkOp) << DragOperation::None;
        QTest::newRow("neither: none") << false << false << all << DragOperation::None;
    }
    void entry()
    {
        QFETCH(bool, color);
        QFETCH(bool, files);
        QFETCH(DragOperations, mask);
        QTEST(DropView::draggingEntered({color, files}, mask), "expected");
    }

    void drop_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<bool>("color");
        QTest::addColumn<DragOperations>("mask");
        QTest::addColumn<int>("deliveries");
        QTest::addColumn<int>("colors");
        QTest::addColumn<bool>("logged");
        const QStringList three = {u"/a/1.png"_s, u"/b/2 ä.png"_s, u"/c/3%20.png"_s};
        QTest::newRow("all paths in one call") << three << false << DragOperations(linkOp) << 1 << 0 << false;
        QTest::newRow("an empty list as it is") << QStringList() << false << DragOperations(linkOp) << 1 << 0 << false;
        QTest::newRow("copy only: logged, nothing delivered")
            << three << false << DragOperations(copyOp) << 0 << 0 << true;
        QTest::newRow("a color goes before the files") << three << true << DragOperations(linkOp) << 0 << 1 << false;
        QTest::newRow("a color needs no operation") << three << true << DragOperations() << 0 << 1 << false;
    }
    void drop()
    {
        QFETCH(QStringList, paths);
        QFETCH(bool, color);
        QFETCH(DragOperations, mask);
        QFETCH(bool, logged);
        QMimeData mimeData;
        fill(mimeData, paths, color);
        if (paths.isEmpty())
            mimeData.setData(u"text/uri-list"_s, QByteArray());
        RecordingDelegate delegate;
        DropView view;
        view.setDelegate(&delegate);
        if (logged)
            QTest::ignoreMessage(QtInfoMsg, "Error - Copied?!");
        else
            QTest::failOnWarning(QRegularExpression(u".*"_s));
        QVERIFY(view.performDragOperation(mimeData, mask));
        QTEST(static_cast<int>(delegate.received.size()), "deliveries");
        QTEST(static_cast<int>(delegate.colors.size()), "colors");
        if (!delegate.received.isEmpty())
            QCOMPARE(delegate.received.first(), paths);
    }

    void dropWithNeitherAnswersYesAndDoesNothing()
    {
        QMimeData mimeData;
        mimeData.setText(u"hello"_s);
        RecordingDelegate delegate;
        DropView view;
        view.setDelegate(&delegate);
        QVERIFY(view.performDragOperation(mimeData, DragOperation::Link));
        QVERIFY(delegate.received.isEmpty());
        QVERIFY(delegate.colors.isEmpty());
    }

    void missingDelegateSwallowsTheDrop()
    {
        QMimeData mimeData;
        fill(mimeData, {u"/a.png"_s});
        DropView view;
        QVERIFY(view.performDragOperation(mimeData, DragOperation::Link));
        SilentDelegate silent;
        view.setDelegate(&silent);
        QVERIFY(view.performDragOperation(mimeData, DragOperation::Link));
    }

    void offeredActions_data()
    {
        QTest::addColumn<Qt::DropActions>("offered");
        QTest::addColumn<DragProtocol>("protocol");
        QTest::addColumn<DragOperations>("expected");
        const DragProtocol links = DragProtocol::WithLinks;
        const DragProtocol noLinks = DragProtocol::WithoutLinks;
        QTest::newRow("nothing") << Qt::DropActions() << links << DragOperations();
        QTest::newRow("copy") << Qt::DropActions(Qt::CopyAction) << links << (copyOp | genericOp);
        QTest::newRow("move is neither copy nor link")
            << Qt::DropActions(Qt::MoveAction) << links << DragOperations(genericOp);
        QTest::newRow("copy and move, as some file managers offer")
            << (Qt::CopyAction | Qt::MoveAction) << links << (copyOp | linkOp | genericOp);
        QTest::newRow("copy, move and link")
            << (Qt::CopyAction | Qt::MoveAction | Qt::LinkAction) << links << (copyOp | linkOp | genericOp);
        QTest::newRow("copy where no links exist")
            << Qt::DropActions(Qt::CopyAction) << noLinks << (copyOp | linkOp | genericOp);
        QTest::newRow("move where no links exist")
            << Qt::DropActions(Qt::MoveAction) << noLinks << DragOperations(genericOp);
    }
    void offeredActions()
    {
        QFETCH(Qt::DropActions, offered);
        QFETCH(DragProtocol, protocol);
        QTEST(sourceOperations(offered, protocol), "expected");
    }

    void content_data()
    {
        QTest::addColumn<QList<QUrl>>("urls");
        QTest::addColumn<bool>("files");
        QTest::newRow("a local file") << QList{QUrl(u"file:///a.png"_s)} << true;
        QTest::newRow("a page on the web is no file") << QList{QUrl(u"https://example.org/a.png"_s)} << false;
        QTest::newRow("one of both is files") << QList{QUrl(u"https://e.org/"_s), QUrl(u"file:///a"_s)} << true;
    }
    void content()
    {
        QFETCH(QList<QUrl>, urls);
        QMimeData mimeData;
        mimeData.setUrls(urls);
        QTEST(DragContent::of(mimeData).files, "files");
    }

    void dragOverTheWidget_data()
    {
        QTest::addColumn<Qt::DropActions>("offered");
        QTest::addColumn<Qt::DropAction>("shown");
        QTest::addColumn<int>("deliveries");
        QTest::newRow("a file manager's drag")
            << (Qt::CopyAction | Qt::MoveAction | Qt::LinkAction) << Qt::LinkAction << 1;
        QTest::newRow("one that offers no link") << (Qt::CopyAction | Qt::MoveAction) << Qt::CopyAction << 1;
        QTest::newRow("copy only shows copy and delivers nothing")
            << Qt::DropActions(Qt::CopyAction) << Qt::CopyAction << 0;
    }
    void dragOverTheWidget()
    {
        QFETCH(Qt::DropActions, offered);
        QFETCH(Qt::DropAction, shown);
        QMimeData mimeData;
        fill(mimeData, {u"/a.png"_s});
        RecordingDelegate delegate;
        DropView view;
        view.resize(100, 100);
        view.setDelegate(&delegate);
        QSignalSpy targeted(&view, &DropView::targetedChanged);

        QDragEnterEvent enter(QPoint(5, 5), offered, &mimeData, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &enter);
        QVERIFY(enter.isAccepted());
        QCOMPARE(enter.dropAction(), shown);
        // A drag that would not be delivered does not highlight the view.
        QFETCH(int, deliveries);
        QCOMPARE(view.isTargeted(), deliveries > 0);

        if (deliveries == 0)
            QTest::ignoreMessage(QtInfoMsg, "Error - Copied?!");
        QDropEvent drop(QPointF(5, 5), offered, &mimeData, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &drop);
        QVERIFY(drop.isAccepted());
        QVERIFY(!view.isTargeted());
        QCOMPARE(targeted.size(), 2 * deliveries);
        QTEST(static_cast<int>(delegate.received.size()), "deliveries");
    }

    void textIsTurnedAwayAtEntry()
    {
        QMimeData mimeData;
        mimeData.setText(u"hello"_s);
        DropView view;
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::LinkAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &enter);
        QVERIFY(!enter.isAccepted());
        QVERIFY(!view.isTargeted());
    }

    void aColorAloneIsTakenOnlyWhereColorsAre_data()
    {
        QTest::addColumn<bool>("takesColors");
        QTest::newRow("by a view for files") << false;
        QTest::newRow("by a view for colors") << true;
    }
    void aColorAloneIsTakenOnlyWhereColorsAre()
    {
        QFETCH(bool, takesColors);
        QMimeData mimeData;
        mimeData.setColorData(QColor(Qt::red));
        RecordingDelegate delegate;
        DropView view;
        view.setDelegate(&delegate);
        view.setTakesColors(takesColors);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &enter);
        QCOMPARE(enter.isAccepted(), takesColors);
        QCOMPARE(view.isTargeted(), takesColors);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &drop);
        QCOMPARE(delegate.colors.size(), takesColors ? 1 : 0);
    }

    void leavingEndsTheHighlight()
    {
        QMimeData mimeData;
        fill(mimeData, {u"/a.png"_s});
        DropView view;
        QDragEnterEvent enter(QPoint(5, 5), Qt::LinkAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &enter);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&view, &leave);
        QVERIFY(!view.isTargeted());
    }

    void highlightFollowsTheViewAndShowsTheDrag()
    {
        DropView view;
        view.resize(100, 80);
        auto *highlight = new DropHighlight(&view, Qt::blue);
        view.resize(200, 120);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QCOMPARE(highlight->size(), view.size());
        const QColor atRest = view.grab().toImage().pixelColor(100, 60);
        QMimeData mimeData;
        fill(mimeData, {u"/a.png"_s});
        QDragEnterEvent enter(QPoint(5, 5), Qt::LinkAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &enter);
        QVERIFY(view.grab().toImage().pixelColor(100, 60) != atRest);
    }

    void highlightAboveAnotherWidgetShowsOnlyTheDrag()
    {
        QWidget report;
        report.resize(100, 80);
        DropView view(&report);
        view.hide();
        new DropHighlight(&view, Qt::blue, &report);
        report.resize(200, 120);
        report.show();
        QVERIFY(QTest::qWaitForWindowExposed(&report));
        const QImage atRest = report.grab().toImage();
        QMimeData mimeData;
        fill(mimeData, {u"/a.png"_s});
        QDragEnterEvent enter(QPoint(5, 5), Qt::LinkAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
        view.judge(&enter);
        const QImage targeted = report.grab().toImage();
        QVERIFY(targeted.pixelColor(190, 60) != atRest.pixelColor(190, 60));
        view.forget();
        QCOMPARE(report.grab().toImage(), atRest);
    }
};

QTEST_MAIN(DropViewTest)
#include "DropViewTest.moc"
