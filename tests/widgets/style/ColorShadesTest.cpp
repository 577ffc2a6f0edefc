// SPDX-License-Identifier: MIT
#include "tests/doubles/Pointer.h"

#include "widgets/buttons/KBButton.h"
#include "widgets/style/ColorShades.h"

#include <QSignalSpy>
#include <QTest>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

class ColorShadesTest : public QObject
{
    Q_OBJECT
private slots:
    void lightenAndDarken_data()
    {
        QTest::addColumn<RgbaColor>("color");
        QTest::addColumn<float>("value");
        QTest::addColumn<RgbaColor>("lighter");
        QTest::addColumn<RgbaColor>("darker");
        QTest::newRow("plain") << RgbaColor{0.5F, 0.25F, 0.75F, 1} << 0.125F << RgbaColor{0.625F, 0.375F, 0.875F, 1}
                               << RgbaColor{0.375F, 0.125F, 0.625F, 1};
        QTest::newRow("not clamped") << RgbaColor{1, 0, 0.5F, 1} << 0.75F << RgbaColor{1.75F, 0.75F, 1.25F, 1}
                                     << RgbaColor{0.25F, -0.75F, -0.25F, 1};
        QTest::newRow("single precision") << RgbaColor{0.204F, 0.286F, 0.369F, 1} << 0.12F
                                          << RgbaColor{0.204F + 0.12F, 0.286F + 0.12F, 0.369F + 0.12F, 1}
                                          << RgbaColor{0.204F - 0.12F, 0.286F - 0.12F, 0.369F - 0.12F, 1};
        QTest::newRow("alpha becomes 1") << RgbaColor{0, 0, 0, 0.25F} << 0.5F << RgbaColor{0.5F, 0.5F, 0.5F, 1}
                                         << RgbaColor{-0.5F, -0.5F, -0.5F, 1};
    }
    void lightenAndDarken()
    {
        QFETCH(RgbaColor, color);
        QFETCH(float, value);
        QFETCH(RgbaColor, lighter);
        QFETCH(RgbaColor, darker);
        QVERIFY(lightenColorByValue(color, value) == lighter);
        QVERIFY(darkenColorByValue(color, value) == darker);
    }

    void light_data()
    {
        QTest::addColumn<RgbaColor>("color");
        QTest::addColumn<bool>("light");
        QTest::newRow("white") << RgbaColor{1, 1, 1} << true;
        QTest::newRow("mean at the limit") << RgbaColor{0.8F, 0.8F, 0.8F} << false;
        QTest::newRow("mean just above") << RgbaColor{0.8F, 0.8F, 0.801F} << true;
        QTest::newRow("yellow") << RgbaColor{1, 1, 0} << false;
        QTest::newRow("alpha does not count") << RgbaColor{1, 1, 1, 0} << true;
    }
    void light()
    {
        QFETCH(RgbaColor, color);
        QTEST(isLightColor(color), "light");
    }

    void lightGray()
    {
        QVERIFY(!isLightColor(CalibratedGray{0.8F}));
        QVERIFY(isLightColor(CalibratedGray{0.81F}));
    }

    void paintedColorIsClamped()
    {
        QCOMPARE(platformColor(RgbaColor{1.5F, -0.5F, 0.5F}).rgb(), QColor(255, 0, 128).rgb());
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
        const RgbaColor base = KBButtonCell::getColorForButtonType(type);
        QVERIFY(button.cell().baseColor() == base);
        const QImage picture = pictureOf(&button, scale);
        const auto near = [](const QColor &a, const QColor &b, int tolerance) {
            return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance &&
                   qAbs(a.blue() - b.blue()) <= tolerance;
        };
        const int middle = qRound(50 * scale);
        const int bottom = picture.height() - 1;
        QCOMPARE(picture.pixelColor(middle, 0).rgb(), platformColor(darkenColorByValue(base, 0.12F)).rgb());
        QCOMPARE(picture.pixelColor(middle, bottom).rgb(), platformColor(darkenColorByValue(base, 0.12F)).rgb());
        // The first and last row inside the outline are half a row inside the gradient's ends.
        const int inside = qRound(scale);
        QVERIFY(near(picture.pixelColor(middle, inside), platformColor(lightenColorByValue(base, 0.12F)), 2));
        QVERIFY(near(picture.pixelColor(middle, bottom - inside), platformColor(base), 2));
        QTest::mousePress(&button, Qt::LeftButton);
        QVERIFY(near(pictureOf(&button, scale).pixelColor(middle, inside),
                     platformColor(darkenColorByValue(base, 0.12F)), 2));
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

QTEST_MAIN(ColorShadesTest)
#include "ColorShadesTest.moc"
