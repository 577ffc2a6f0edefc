// SPDX-License-Identifier: MIT
#include "devices/FadingView.h"

#include "tests/doubles/DrivenClock.h"

#include <QTest>

#include <cmath>

using namespace lumora;

class FadingViewTest : public QObject
{
    Q_OBJECT

private slots:
    void fadesInAQuarterOfASecond_data();
    void fadesInAQuarterOfASecond();
    void turnsRoundFromTheOpacityItHas();
    void aHiddenViewChangesAtOnce();
};

namespace
{

/// The precision of a computed Bézier curve, too small to be visible.
constexpr float tolerance = 0.003F;

void startFading(FadingView &view, float alpha)
{
    view.fadeTo(alpha);
    // An animation begins with the next turn of the event loop.
    QCoreApplication::processEvents();
}

} // namespace

void FadingViewTest::fadesInAQuarterOfASecond_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<float>("least");
    QTest::addColumn<float>("most");
    // Slow at both ends: a linear fade would be at 0.925 and 0.325.
    QTest::addRow("starts slowly") << 25 << 0.96F << 1.0F;
    QTest::addRow("half way in half the time") << 125 << 0.625F - tolerance << 0.625F + tolerance;
    QTest::addRow("ends slowly") << 225 << 0.25F << 0.29F;
    QTest::addRow("not there before the time") << 245 << 0.2501F << 0.26F;
    QTest::addRow("there in time") << 250 << 0.25F << 0.25F;
}

void FadingViewTest::fadesInAQuarterOfASecond()
{
    QFETCH(int, milliseconds);
    QFETCH(float, least);
    QFETCH(float, most);
    testing::DrivenClock clock;
    FadingView view;
    view.show();
    startFading(view, 0.25F);
    clock.pass(milliseconds);
    QVERIFY2(view.alphaValue() >= least && view.alphaValue() <= most, qPrintable(QString::number(view.alphaValue())));
}

void FadingViewTest::turnsRoundFromTheOpacityItHas()
{
    testing::DrivenClock clock;
    FadingView view;
    view.show();
    startFading(view, 0.25F);
    clock.pass(125);
    const float turned = view.alphaValue();
    startFading(view, 1.0F);
    QVERIFY2(std::abs(view.alphaValue() - turned) < tolerance, qPrintable(QString::number(view.alphaValue())));
    clock.pass(125);
    QVERIFY(std::abs(view.alphaValue() - (turned + 1) / 2) < tolerance);
    clock.pass(125);
    QCOMPARE(view.alphaValue(), 1.0F);
}

void FadingViewTest::aHiddenViewChangesAtOnce()
{
    FadingView view;
    view.fadeTo(0.25F);
    QCOMPARE(view.alphaValue(), 0.25F);
}

QTEST_MAIN(FadingViewTest)
#include "FadingViewTest.moc"
