// SPDX-License-Identifier: MIT
#include "widgets/style/AppStyle.h"
#include "widgets/style/Palette.h"

#include <QApplication>
#include <QPalette>
#include <QTest>

#include <cmath>

using namespace lumora;

namespace
{

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// As the Web Content Accessibility Guidelines define it, 1 to 21.
double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// The least contrast of body text.
constexpr double enough = 4.5;

QColor gray(float white)
{
    return QColor::fromRgbF(white, white, white);
}

} // namespace

/// The tools' colors are given, and so are white text on them and large headings in them. All other text colors are
/// ours.
class ContrastTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { applyAppColors(); }

    void measuresAsTheGuidelinesDo()
    {
        QCOMPARE(contrast(Qt::white, Qt::black), 21.0);
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QCOMPARE(contrast(Qt::red, Qt::red), 1.0);
        // The guidelines' own example of the lightest gray that is still enough on white.
        QVERIFY(contrast(QColor(0x76, 0x76, 0x76), Qt::white) >= enough);
        QVERIFY(contrast(QColor(0x77, 0x77, 0x77), Qt::white) < enough);
    }

    void textIsReadable_data()
    {
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("background");
        using namespace palette;
        QTest::newRow("body text on the window") << chromeText << window;
        QTest::newRow("body text on a panel") << chromeText << panel;
        QTest::newRow("body text, pressed") << chromeTextDark << window;
        QTest::newRow("a field's text") << chromeText << textFieldBackground;
        QTest::newRow("a field's prompt") << placeholderText << textFieldBackground;
        QTest::newRow("selected text") << selectedText << selectedTextBackground;
        QTest::newRow("a link") << linkText << window;
        QTest::newRow("a link on a panel") << linkText << panel;
        QTest::newRow("a complaint") << errorDark << window;
        QTest::newRow("a plain button") << buttonText << chromeText;
        QTest::newRow("a plain button, pressed") << buttonText << chromeTextDark;
        QTest::newRow("an alert's default button") << buttonText << linkText;
        // A title bar's gradient is darkest at its top.
        QTest::newRow("a title") << titleText << gray(0.659F);
        QTest::newRow("a title, not in front") << inactiveTitleText << gray(0.851F);
    }
    void textIsReadable()
    {
        QFETCH(QColor, text);
        QFETCH(QColor, background);
        const double measured = contrast(text, background);
        QVERIFY2(measured >= enough, qPrintable(QString::number(measured)));
    }

    /// Lists, menus, dialogs and everything else that uses the application's palette.
    void standardControlsAreReadable_data()
    {
        QTest::addColumn<QPalette::ColorRole>("text");
        QTest::addColumn<QPalette::ColorRole>("background");
        QTest::newRow("on a window") << QPalette::WindowText << QPalette::Window;
        QTest::newRow("in a field") << QPalette::Text << QPalette::Base;
        QTest::newRow("in every other row") << QPalette::Text << QPalette::AlternateBase;
        QTest::newRow("a prompt") << QPalette::PlaceholderText << QPalette::Base;
        QTest::newRow("on a button") << QPalette::ButtonText << QPalette::Button;
        QTest::newRow("selected") << QPalette::HighlightedText << QPalette::Highlight;
        QTest::newRow("a link") << QPalette::Link << QPalette::Window;
        QTest::newRow("a tool tip") << QPalette::ToolTipText << QPalette::ToolTipBase;
    }
    void standardControlsAreReadable()
    {
        QFETCH(QPalette::ColorRole, text);
        QFETCH(QPalette::ColorRole, background);
        const QPalette colors = QApplication::palette();
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
            const double measured = contrast(colors.color(group, text), colors.color(group, background));
            QVERIFY2(measured >= enough, qPrintable(QString::number(measured)));
        }
    }
};

QTEST_MAIN(ContrastTest)
#include "ContrastTest.moc"
