// SPDX-License-Identifier: MIT
#include "tool/PopoverAlert.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/popover/SFBPopover.h"

#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

class PopoverAlertTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(600, 400);
        m_window->move(200, 300);
        m_target = new QWidget(m_window.get());
        m_target->setGeometry(100, 200, 80, 40);
        m_window->show();
        m_answers.clear();
    }
    void cleanup()
    {
        while (PopoverAlert *alert = PopoverAlert::currentAlert())
            alert->stopSynchronousPopoverAlert(alert->buttons().first());
        m_window.reset();
    }

    void responses_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("response");
        QTest::newRow("first") << 0 << 1000;
        QTest::newRow("second") << 1 << 1001;
        QTest::newRow("third") << 2 << 1002;
        QTest::newRow("fourth") << 3 << 1003;
        QTest::newRow("a response is passed through, lowest") << 1000 << 1000;
        QTest::newRow("a response is passed through, highest") << 1002 << 1002;
        QTest::newRow("just above the responses") << 1003 << 2003;
    }
    void responses()
    {
        QFETCH(int, index);
        QTEST(PopoverAlert::responseForButton(index), "response");
    }

    void buttonAnswersAndClosesThePopover()
    {
        const auto alert = run(u"one"_s);
        QCOMPARE(PopoverAlert::currentAlert(), alert.get());
        QPointer<SFBPopover> popover = alert->parentPopover();
        QVERIFY(popover->isVisible());
        alert->buttons().at(3)->click();
        QCOMPARE(m_answers, QStringList{u"one 1003"_s});
        QVERIFY(PopoverAlert::currentAlert() == nullptr);
        QTRY_VERIFY(popover.isNull());
    }

    void anAlertWaitsWhileItsViewIsOutOfSight()
    {
        const auto alert = run(u"one"_s);
        alert->parentPopover()->setAnimates(false);
        QVERIFY(alert->parentPopover()->isVisible());
        m_target->hide();
        QVERIFY(!alert->parentPopover()->isVisible());
        QCOMPARE(PopoverAlert::currentAlert(), alert.get());
        m_target->show();
        QTRY_VERIFY(alert->parentPopover()->isVisible());
        alert->buttons().first()->click();
        QCOMPARE(m_answers, QStringList{u"one 1000"_s});
    }

    void postponedAlertsComeBackLastInFirstOut()
    {
        const auto one = run(u"one"_s);
        const auto two = run(u"two"_s);
        const auto three = run(u"three"_s);
        QCOMPARE(PopoverAlert::currentAlert(), three.get());
        QCOMPARE(PopoverAlert::queueLength(), 2);
        three->buttons().first()->click();
        QCOMPARE(PopoverAlert::currentAlert(), two.get());
        two->buttons().first()->click();
        QCOMPARE(PopoverAlert::currentAlert(), one.get());
        one->buttons().at(1)->click();
        QVERIFY(PopoverAlert::currentAlert() == nullptr);
        QCOMPARE(PopoverAlert::queueLength(), 0);
        QCOMPARE(m_answers, (QStringList{u"three 1000"_s, u"two 1000"_s, u"one 1001"_s}));
    }

    void onlyOnePopoverIsOnScreen()
    {
        const auto one = run(u"one"_s);
        QPointer<SFBPopover> first = one->parentPopover();
        const auto two = run(u"two"_s);
        QTRY_VERIFY(first.isNull());
        QVERIFY(two->parentPopover()->isVisible());
    }

    void everyEdgeIsTheUpperOne_data()
    {
        QTest::addColumn<RectEdge>("edge");
        QTest::newRow("left") << RectEdge::MinX;
        QTest::newRow("lower") << RectEdge::MinY;
        QTest::newRow("right") << RectEdge::MaxX;
        QTest::newRow("upper") << RectEdge::MaxY;
    }
    void everyEdgeIsTheUpperOne()
    {
        QFETCH(RectEdge, edge);
        const auto alert = PopoverAlert::create();
        alert->messageText = u"edge"_s;
        alert->buttonTitles = QStringList{u"Close"_s};
        alert->runAsPopoverForView(m_target, edge, {});
        QCOMPARE(alert->parentPopover()->position(), PopoverPosition::Above);
        const SFBPopoverWindow *balloon = alert->parentPopover()->popoverWindow();
        const int arrow =
            balloon->popoverWindowFrame()->mapToGlobal(QPoint()).x() + balloon->popoverWindowFrame()->width() / 2;
        QVERIFY(std::abs(arrow - m_target->mapToGlobal(QPoint(40, 0)).x()) <= 1);
    }

    void alertAtTheScreensUpperEdgeOpensBelow()
    {
        m_window->move(m_window->screen()->availableGeometry().topLeft());
        m_target->move(100, 0);
        const auto alert = PopoverAlert::create();
        alert->messageText = u"edge"_s;
        alert->buttonTitles = QStringList{u"Close"_s};
        alert->runAsPopoverForView(m_target, {});
        const QWidget &content = *alert->parentPopover()->popoverWindow()->contentView();
        const QRect shown(content.mapToGlobal(QPoint()), content.size());
        QCOMPARE(shown.intersected(m_window->screen()->availableGeometry()), shown);
    }

    void alertOfAViewThatHasGoneIsPassedOver()
    {
        const auto one = run(u"one"_s);
        auto *gone = new QWidget(m_window.get());
        const auto two = run(u"two"_s, gone);
        const auto three = run(u"three"_s);
        delete gone;
        three->buttons().first()->click();
        QCOMPARE(PopoverAlert::currentAlert(), one.get());
    }

    void alertThatAnAnswerRunsStaysAndTheAnsweredOneDoesNotComeBack()
    {
        const auto waiting = run(u"waiting"_s);
        std::shared_ptr<PopoverAlert> next;
        const auto alert = PopoverAlert::create();
        alert->buttonTitles = QStringList{u"Close"_s};
        alert->runAsPopoverForView(m_target, [&](int) { next = run(u"next"_s); });
        alert->buttons().first()->click();
        QCOMPARE(PopoverAlert::currentAlert(), next.get());
        QVERIFY(next->parentPopover()->isVisible());
        QCOMPARE(PopoverAlert::queueLength(), 1);
        next->buttons().first()->click();
        QCOMPARE(PopoverAlert::currentAlert(), waiting.get());
    }

    void alertThatItsOwnAnswerRunsAnewIsShownAgain()
    {
        const auto alert = PopoverAlert::create();
        alert->buttonTitles = QStringList{u"Again"_s};
        alert->runAsPopoverForView(
            m_target, [&](int) { alert->runAsPopoverForView(m_target, [this](int) { m_answers << u"second"_s; }); });
        alert->buttons().first()->click();
        QCOMPARE(PopoverAlert::currentAlert(), alert.get());
        QVERIFY(alert->parentPopover()->isVisible());
        QCOMPARE(PopoverAlert::queueLength(), 0);
        alert->buttons().first()->click();
        QVERIFY(PopoverAlert::currentAlert() == nullptr);
        QCOMPARE(m_answers, QStringList{u"second"_s});
    }

    void alertKeepsItselfAlive()
    {
        run(u"one"_s);
        QVERIFY(PopoverAlert::currentAlert() != nullptr);
        PopoverAlert::currentAlert()->buttons().first()->click();
        QCOMPARE(m_answers, QStringList{u"one 1000"_s});
    }

private:
    std::shared_ptr<PopoverAlert> run(const QString &name, QWidget *target = nullptr)
    {
        const auto alert = PopoverAlert::create();
        alert->messageText = name;
        alert->informativeText = u"What it is about"_s;
        alert->buttonTitles = {u"Close"_s, u"Report"_s, u"Support"_s, u"More"_s};
        alert->runAsPopoverForView(target == nullptr ? m_target : target, [this, name](int response) {
            m_answers << name + u' ' + QString::number(response);
        });
        return alert;
    }

    std::unique_ptr<QWidget> m_window;
    QWidget *m_target = nullptr;
    QStringList m_answers;
};

QTEST_MAIN(PopoverAlertTest)
#include "PopoverAlertTest.moc"
