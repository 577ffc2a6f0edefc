// SPDX-License-Identifier: MIT
#include "tests/doubles/Pointer.h"

#include "widgets/buttons/KBButton.h"
#include "widgets/style/ColorExtensions.h"

#include <QSignalSpy>
#include <QTest>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

class ColorExtensionsTest : public QObject
{
    Q_OBJECT
private slots:
    void lightenAndDarken_data()
    {
        QTest::addColumn<CalibratedColor>("color");
        QTest::addColumn<float>("value");
        QTest::addColumn<CalibratedColor>("lighter");
        QTest::addColumn<CalibratedColor>("darker");
        QTest::newRow("plain") << CalibratedColor{0.5F, 0.25F, 0.75F, 1} << 0.125F
                               << CalibratedColor{0.625F, 0.375F, 0.875F, 1}
                               << CalibratedColor{0.375F, 0.125F, 0.625F, 1};
        QTest::newRow("not clamped") << CalibratedColor{1, 0, 0.5F, 1} << 0.75F
                                     << CalibratedColor{1.75F, 0.75F, 1.25F, 1}
                                     << CalibratedColor{0.25F, -0.75F, -0.25F, 1};
        QTest::newRow("single precision") << CalibratedColor{0.204F, 0.286F, 0.369F, 1} << 0.12F
                                          << CalibratedColor{0.204F + 0.12F, 0.286F + 0.12F, 0.369F + 0.12F, 1}
                                          << CalibratedColor{0.204F - 0.12F, 0.286F - 0.12F, 0.369F - 0.12F, 1};
        QTest::newRow("alpha becomes 1") << CalibratedColor{0, 0, 0, 0.25F} << 0.5F
                                         << CalibratedColor{0.5F, 0.5F, 0.5F, 1}
                                         << CalibratedColor{-0.5F, -0.5F, -0.5F, 1};
    }
    void lightenAndDarken()
    {
        QFETCH(CalibratedColor, color);
        QFETCH(float, value);
        QFETCH(CalibratedColor, lighter);
        QFETCH(CalibratedColor, darker);
        QVERIFY(lightenColorByValue(color, value) == lighter);
        QVERIFY(darkenColorByValue(color, value) == darker);
    }

    void light_data()
    {
        QTest::addColumn<CalibratedColor>("color");
        QTest::addColumn<bool>("light");
        QTest::newRow("white") << CalibratedColor{1, 1, 1} << true;
        QTest::newRow("mean at the limit") << CalibratedColor{0.8F, 0.8F, 0.8F} << false;
        QTest::newRow("mean just above") << CalibratedColor{0.8F, 0.8F, 0.801F} << true;
        QTest::newRow("yellow") << CalibratedColor{1, 1, 0} << false;
        QTest::newRow("alpha does not count") << CalibratedColor{1, 1, 1, 0} << true;
    }
    void light()
    {
        QFETCH(CalibratedColor, color);
        QTEST(isLightColor(color), "light");
    }

    void lightGray()
    {
        QVERIFY(!isLightColor(CalibratedGray{0.8F}));
        QVERIFY(isLightColor(CalibratedGray{0.81F}));
    }

    void paintedColorIsClamped()
    {
        QCOMPARE((CalibratedColor{1.5F, -0.5F, 0.5F}.toColor().rgb()), QColor(255, 0, 128).rgb());
    }

    void bezel_data()
    {
        QTest::addColumn<KBButtonType>("type");
        QTest::addColumn<qreal>("scale");
        for (const qreal scale : {1.0, 2.0}) {
            QTest::addRow("default @%g", scale) << KBButtonType::Default << scale;
            QTest::addRow("primary @%g", scale) << KBButtonType::Primary << scale;
            QTest::addRow("danger @%g", scale) << KBButtonType::Danger << scale;
        }
    }
    void bezel()
    {
        QFETCH(KBButtonType, type);
        QFETCH(qreal, scale);
        KBButton button;
        button.setKBButtonType(type);
        button.resize(101, 31);
        const CalibratedColor base = KBButtonCell::getColorForButtonType(type);
        QVERIFY(button.cell().baseColor() == base);
        const QImage picture = pictureOf(&button, scale);
        const auto near = [](const QColor &a, const QColor &b, int tolerance) {
            return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance &&
                   qAbs(a.blue() - b.blue()) <= tolerance;
        };
        const int middle = qRound(50 * scale);
        const int bottom = picture.height() - 1;
        QCOMPARE(picture.pixelColor(middle, 0).rgb(), darkenColorByValue(base, 0.12F).toColor().rgb());
        QCOMPARE(picture.pixelColor(middle, bottom).rgb(), darkenColorByValue(base, 0.12F).toColor().rgb());
        // The first and last row inside the outline lie half a row inside the gradient's ends.
        const int inside = qRound(scale);
        QVERIFY(near(picture.pixelColor(middle, inside), lightenColorByValue(base, 0.12F).toColor(), 2));
        QVERIFY(near(picture.pixelColor(middle, bottom - inside), base.toColor(), 2));
        QTest::mousePress(&button, Qt::LeftButton);
        QVERIFY(
            near(pictureOf(&button, scale).pixelColor(middle, inside), darkenColorByValue(base, 0.12F).toColor(), 2));
    }

    void typeIsAPropertyForInterfaceFiles()
    {
        KBButton button;
        QCOMPARE(button.kbButtonType(), KBButtonType::Default);
        QVERIFY(button.setProperty("kbButtonType", u"Danger"_s));
        QCOMPARE(button.kbButtonType(), KBButtonType::Danger);
        QCOMPARE(button.property("kbButtonType").value<KBButtonType>(), KBButtonType::Danger);
    }

    void typesDiffer()
    {
        const QList<KBButtonType> types{KBButtonType::Default, KBButtonType::Primary, KBButtonType::Information,
                                        KBButtonType::Success, KBButtonType::Warning, KBButtonType::Danger,
                                        KBButtonType::Inverse};
        for (qsizetype i = 0; i < types.size(); ++i) {
            for (qsizetype j = 0; j < i; ++j)
                QVERIFY(
                    !(KBButtonCell::getColorForButtonType(types[i]) == KBButtonCell::getColorForButtonType(types[j])));
        }
    }

    void pressedByKey()
    {
        KBButton button;
        QSignalSpy clicked(&button, &KBButton::clicked);
        QTest::keyClick(&button, Qt::Key_Return);
        QTest::keyClick(&button, Qt::Key_Space);
        QCOMPARE(clicked.count(), 2);
    }
};

QTEST_MAIN(ColorExtensionsTest)
#include "ColorExtensionsTest.moc"
