// SPDX-License-Identifier: MIT
#include "color/picker/ColorWheel.h"
#include "PickerTest.h"
#include "color/picking/Wheel.h"

#include <QMouseEvent>
#include <QSignalSpy>

using namespace lumora;
using namespace Qt::StringLiterals;

class ColorWheelTest : public PickerTest
{
    Q_OBJECT

private slots:
    void picksOnTheWheel()
    {
        const QPoint middle = m_picker->wheel()->markerCenter().toPoint();
        QTest::mousePress(m_picker->wheel(), Qt::LeftButton, {}, middle + QPoint(0, -500 / 8));
        QCOMPARE(channelNumber(m_picker->model.picked(), ColorChannel::Hue), 90);
        // Dragged off the wheel to the left, the color stays on its rim.
        QMouseEvent move(QEvent::MouseMove, QPointF(-400, middle.y()),
                         m_picker->wheel()->mapToGlobal(QPointF(-400, middle.y())), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(m_picker->wheel(), &move);
        QCOMPARE(m_picker->code(), u"#00ffff"_s);
        QTest::mouseRelease(m_picker->wheel(), Qt::LeftButton);
        QMouseEvent after(QEvent::MouseMove, QPointF(middle), m_picker->wheel()->mapToGlobal(QPointF(middle)),
                          Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(m_picker->wheel(), &after);
        QCOMPARE(m_picker->code(), u"#00ffff"_s);
    }

    void aPressBesideTheDiscIsLeftToTheWindow()
    {
        m_picker->model.setColor(blue);
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), m_picker->wheel()->mapToGlobal(QPointF(1, 1)),
                          Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(m_picker->wheel(), &press);
        QVERIFY(!press.isAccepted());
        QCOMPARE(m_picker->model.color(), blue);
    }

    void movesOnTheWheelByKey_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("withShift");
        QTest::addColumn<int>("hue");
        QTest::addColumn<int>("saturation");

        QTest::newRow("right turns by a degree") << int(Qt::Key_Right) << false << 241 << 50;
        QTest::newRow("left turns back") << int(Qt::Key_Left) << false << 239 << 50;
        QTest::newRow("up saturates by a percent") << int(Qt::Key_Up) << false << 240 << 51;
        QTest::newRow("down pales") << int(Qt::Key_Down) << false << 240 << 49;
        QTest::newRow("ten times with Shift") << int(Qt::Key_Right) << true << 250 << 50;
    }
    void movesOnTheWheelByKey()
    {
        QFETCH(int, key);
        QFETCH(bool, withShift);
        m_picker->model.setPicked(withHsb(m_picker->model.picked(), {240 / 360.0F, 0.5F, 1.0F}));
        QTest::keyClick(m_picker->wheel(), static_cast<Qt::Key>(key), withShift ? Qt::ShiftModifier : Qt::NoModifier);
        QTEST(channelNumber(m_picker->model.picked(), ColorChannel::Hue), "hue");
        QTEST(channelNumber(m_picker->model.picked(), ColorChannel::Saturation), "saturation");
    }

    void theWheelsKeysStayInRange()
    {
        m_picker->model.setPicked(withHsb(m_picker->model.picked(), {0.0F, 1.0F, 1.0F}));
        QTest::keyClick(m_picker->wheel(), Qt::Key_Up);
        QCOMPARE(m_picker->model.picked().hsb.saturation, 1.0F);
        QTest::keyClick(m_picker->wheel(), Qt::Key_Left);
        QCOMPARE(channelNumber(m_picker->model.picked(), ColorChannel::Hue), 359);
    }

    void theHueOfAGrayCanBeTurned()
    {
        m_picker->model.setColor({0.5F, 0.5F, 0.5F, 1.0F});
        QSignalSpy changed(&m_picker->model, &PickerModel::colorChanged);
        QTest::keyClick(m_picker->wheel(), Qt::Key_Right);
        QTest::keyClick(m_picker->wheel(), Qt::Key_Right);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(channelNumber(m_picker->model.picked(), ColorChannel::Hue), 2);
    }

    void tellsTheWheelToAScreenReader()
    {
        m_picker->model.setColor(blue);
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(m_picker->wheel());
        QCOMPARE(interface->role(), QAccessible::Dial);
        QCOMPARE(interface->text(QAccessible::Name), u"Color wheel"_s);
        QCOMPARE(interface->text(QAccessible::Value), u"Hue 240°, saturation 100%"_s);
        QAccessibleValueInterface *value = ShownPicker::valueOf(m_picker->wheel());
        QVERIFY(value != nullptr);
        QCOMPARE(value->currentValue().toInt(), 240);
        QCOMPARE(value->minimumValue().toInt(), 0);
        QCOMPARE(value->maximumValue().toInt(), 359);
        value->setCurrentValue(120);
        QCOMPARE(m_picker->code(), u"#00ff00"_s);
    }

    void drawsTheWheel_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::newRow("scale 1") << 1.0;
        QTest::newRow("scale 2") << 2.0;
    }
    void drawsTheWheel()
    {
        QFETCH(qreal, scale);
        const QImage image = wheelImage(50, scale);
        const auto at = [&](qreal x, qreal y) {
            return image.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale));
        };
        QCOMPARE(image.width(), static_cast<int>(100 * scale));
        QCOMPARE(at(1, 1).alpha(), 0);
        QVERIFY(at(50, 50).saturation() < 10);
        QVERIFY(at(97, 50).hue() < 3 || at(97, 50).hue() > 357);
        QVERIFY(std::abs(at(50, 3).hue() - 90) < 3);
        QVERIFY(std::abs(at(3, 50).hue() - 180) < 3);
        QVERIFY(at(97, 50).saturation() > 235);
    }

    void everyPixelOfTheWheelIsThePlacesColor()
    {
        // A radius of 61.25 points, so that the disc does not end at a pixel's edge.
        const QImage image = wheelImage(61.25, 1.0);
        const WheelGeometry wheel(QRectF(0, 0, 122.5, 122.5));
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QPointF place(x + 0.5, y + 0.5);
                const QPointF offset = place - wheel.center();
                const qreal inside = wheel.radius() - std::hypot(offset.x(), offset.y());
                const QColor pixel = image.pixelColor(x, y);
                if (inside < -0.5)
                    QCOMPARE(pixel.alpha(), 0);
                if (inside < 0.5)
                    continue;
                const WheelPosition position = wheel.positionAt(place);
                const QColor color = platformColor(rgbaFrom(HsbColor{position.hue, position.saturation, 1.0F}, 1.0F));
                QCOMPARE(pixel.alpha(), 255);
                // Rounded in single precision, a component may fall to the neighboring byte.
                QVERIFY2(std::abs(pixel.red() - color.red()) <= 1 && std::abs(pixel.green() - color.green()) <= 1 &&
                             std::abs(pixel.blue() - color.blue()) <= 1,
                         qPrintable(QString::number(x) + u',' + QString::number(y)));
            }
        }
    }
};

QTEST_MAIN(ColorWheelTest)
#include "ColorWheelTest.moc"
