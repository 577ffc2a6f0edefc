// SPDX-License-Identifier: MIT
#include "color/picker/PickerContent.h"
#include "color/ColorCode.h"
#include "color/picker/ChannelRow.h"
#include "color/picker/ColorSlider.h"
#include "color/picker/ColorWheel.h"
#include "color/picker/PickerModel.h"
#include "color/picker/PickerPages.h"
#include "color/picker/Pipette.h"
#include "color/picker/PopoverPlacement.h"
#include "color/picker/SwatchList.h"
#include "color/picker/WheelImage.h"
#include "resources/Resources.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

using namespace lumora;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(lumora::PopoverPosition)

namespace
{

constexpr RgbaColor blue{0.0F, 0.0F, 1.0F, 1.0F};

/// Ends each pick as the test says.
class FakePipette final : public Pipette
{
public:
    void pick(QWidget *) override { ++picks; }
    int picks = 0;
};

QAccessibleValueInterface *valueOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->valueInterface();
}

} // namespace

class PickerContentTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PickerModel> m_model;
    std::unique_ptr<PickerContent> m_content;
    FakePipette *m_pipette = nullptr;

    ColorWheel *wheel() { return static_cast<WheelPage *>(m_content->page(PickerMode::Wheel))->wheel(); }
    ChannelRow *row(PickerMode mode, ColorChannel channel)
    {
        for (ChannelRow *row : m_content->page(mode)->findChildren<ChannelRow *>()) {
            if (row->channel() == channel)
                return row;
        }
        return nullptr;
    }
    QString text() const { return stringFromColor(m_model->color()); }

private slots:
    void initTestCase() { installTexts(*QCoreApplication::instance(), QLocale(u"en"_s)); }
    void init()
    {
        m_model = std::make_unique<PickerModel>();
        m_content = std::make_unique<PickerContent>(m_model.get());
        auto pipette = std::make_unique<FakePipette>();
        m_pipette = pipette.get();
        m_content->setPipette(std::move(pipette));
        m_content->resize(250, 366);
        m_content->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_content.get()));
    }
    void cleanup()
    {
        m_content.reset();
        m_model.reset();
    }

    void picksOnTheWheel()
    {
        const QPoint middle = wheel()->markerCenter().toPoint();
        QTest::mousePress(wheel(), Qt::LeftButton, {}, middle + QPoint(0, -500 / 8));
        QCOMPARE(channelNumber(m_model->picked(), ColorChannel::Hue), 90);
        // Dragged off the wheel to the left, the colour stays on its rim.
        QMouseEvent move(QEvent::MouseMove, QPointF(-400, middle.y()), wheel()->mapToGlobal(QPointF(-400, middle.y())),
                         Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(wheel(), &move);
        QCOMPARE(text(), u"#00ffff"_s);
        QTest::mouseRelease(wheel(), Qt::LeftButton);
        QMouseEvent after(QEvent::MouseMove, QPointF(middle), wheel()->mapToGlobal(QPointF(middle)), Qt::NoButton,
                          Qt::NoButton, {});
        QCoreApplication::sendEvent(wheel(), &after);
        QCOMPARE(text(), u"#00ffff"_s);
    }

    void aPressBesideTheDiscIsLeftToTheWindow()
    {
        m_model->setColor(blue);
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), wheel()->mapToGlobal(QPointF(1, 1)), Qt::LeftButton,
                          Qt::LeftButton, {});
        QCoreApplication::sendEvent(wheel(), &press);
        QVERIFY(!press.isAccepted());
        QCOMPARE(m_model->color(), blue);
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
        m_model->setPicked(withHsb(m_model->picked(), {240 / 360.0F, 0.5F, 1.0F}));
        QTest::keyClick(wheel(), static_cast<Qt::Key>(key), withShift ? Qt::ShiftModifier : Qt::NoModifier);
        QTEST(channelNumber(m_model->picked(), ColorChannel::Hue), "hue");
        QTEST(channelNumber(m_model->picked(), ColorChannel::Saturation), "saturation");
    }

    void theWheelsKeysStayInRange()
    {
        m_model->setPicked(withHsb(m_model->picked(), {0.0F, 1.0F, 1.0F}));
        QTest::keyClick(wheel(), Qt::Key_Up);
        QCOMPARE(m_model->picked().hsb.saturation, 1.0F);
        QTest::keyClick(wheel(), Qt::Key_Left);
        QCOMPARE(channelNumber(m_model->picked(), ColorChannel::Hue), 359);
    }

    void theHueOfAGreyCanBeTurned()
    {
        m_model->setColor({0.5F, 0.5F, 0.5F, 1.0F});
        QSignalSpy changed(m_model.get(), &PickerModel::colorChanged);
        QTest::keyClick(wheel(), Qt::Key_Right);
        QTest::keyClick(wheel(), Qt::Key_Right);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(channelNumber(m_model->picked(), ColorChannel::Hue), 2);
    }

    void tellsTheWheelToAScreenReader()
    {
        m_model->setColor(blue);
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(wheel());
        QCOMPARE(interface->role(), QAccessible::Dial);
        QCOMPARE(interface->text(QAccessible::Name), u"Colour wheel"_s);
        QCOMPARE(interface->text(QAccessible::Value), u"Hue 240°, saturation 100 %"_s);
        QAccessibleValueInterface *value = valueOf(wheel());
        QVERIFY(value != nullptr);
        QCOMPARE(value->currentValue().toInt(), 240);
        QCOMPARE(value->minimumValue().toInt(), 0);
        QCOMPARE(value->maximumValue().toInt(), 359);
        value->setCurrentValue(120);
        QCOMPARE(text(), u"#00ff00"_s);
    }

    void sliders_data()
    {
        QTest::addColumn<ColorChannel>("channel");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("color");

        QTest::newRow("red") << ColorChannel::Red << 128 << u"#8096da"_s;
        QTest::newRow("green") << ColorChannel::Green << 0 << u"#3400da"_s;
        QTest::newRow("blue") << ColorChannel::Blue << 255 << u"#3496ff"_s;
        QTest::newRow("grey") << ColorChannel::Grey << 52 << u"#343434"_s;
        QTest::newRow("hue") << ColorChannel::Hue << 0 << u"#da3434"_s;
        QTest::newRow("saturation") << ColorChannel::Saturation << 0 << u"#dadada"_s;
        QTest::newRow("brightness") << ColorChannel::Brightness << 0 << u"#000000"_s;
    }
    void sliders()
    {
        QFETCH(ColorChannel, channel);
        QFETCH(int, number);
        QFETCH(QString, color);
        const RgbaColor before = rgbaFrom(QColor(0x34, 0x96, 0xda));
        ChannelRow *channelRow = row(PickerMode::Sliders, channel);
        QVERIFY(channelRow != nullptr);
        for (const bool bySlider : {true, false}) {
            m_model->setColor(before);
            QCOMPARE(channelRow->slider()->value(), channelRow->number()->value());
            if (bySlider)
                channelRow->slider()->setValue(number);
            else
                channelRow->number()->setValue(number);
            QCOMPARE(text(), color);
            QCOMPARE(channelRow->slider()->value(), number);
            QCOMPARE(channelRow->number()->value(), number);
        }
    }

    void whatASliderShowsDoesNotChangeTheColor()
    {
        m_content->page(PickerMode::Sliders);
        // Between two numbers of every channel.
        const RgbaColor between{0.20312F, 0.49321F, 0.71234F, 0.33333F};
        m_model->setColor(between);
        QCOMPARE(m_model->color(), between);
    }

    void hueAndSaturationOutlastBlack()
    {
        m_content->page(PickerMode::Sliders);
        m_model->setColor(rgbaFrom(QColor(0x34, 0x96, 0xda)));
        row(PickerMode::Sliders, ColorChannel::Brightness)->slider()->setValue(0);
        row(PickerMode::Sliders, ColorChannel::Brightness)->slider()->setValue(100);
        QCOMPARE(channelNumber(m_model->picked(), ColorChannel::Hue), 205);
        QCOMPARE(channelNumber(m_model->picked(), ColorChannel::Saturation), 76);
    }

    void opacityIsASliderOfEveryMode()
    {
        m_model->setColor(blue);
        m_content->opacityRow()->number()->setValue(40);
        QCOMPARE(m_model->color(), (RgbaColor{0.0F, 0.0F, 1.0F, 0.4F}));
        m_content->setShowsAlpha(false);
        QVERIFY(!m_content->opacityRow()->isVisible());
        QVERIFY(!m_content->showsAlpha());
        m_content->setShowsAlpha(true);
        QVERIFY(m_content->opacityRow()->isVisible());
    }

    void aSliderFollowsPointerAndKeys()
    {
        m_model->setColor({0.0F, 0.0F, 0.0F, 1.0F});
        m_content->setMode(PickerMode::Sliders);
        QCoreApplication::processEvents();
        ColorSlider *slider = row(PickerMode::Sliders, ColorChannel::Red)->slider();
        QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(slider->width() - 1, slider->height() / 2));
        QCOMPARE(slider->value(), 255);
        QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(0, slider->height() / 2));
        QCOMPARE(slider->value(), 0);
        QTest::keyClick(slider, Qt::Key_Right);
        QCOMPARE(slider->value(), 1);
        QTest::keyClick(slider, Qt::Key_PageUp);
        QCOMPARE(slider->value(), 11);
        QTest::keyClick(slider, Qt::Key_End);
        QCOMPARE(text(), u"#ff0000"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(slider)->role(), QAccessible::Slider);
        QCOMPARE(valueOf(slider)->currentValue().toInt(), 255);
        QCOMPARE(QAccessible::queryAccessibleInterface(slider)->text(QAccessible::Name), u"Red"_s);
    }

    void choosesSwatchesByPointerAndKey()
    {
        m_content->setMode(PickerMode::Palettes);
        QCoreApplication::processEvents();
        auto *palettes = static_cast<PalettesPage *>(m_content->page(PickerMode::Palettes));
        SwatchList *tools = palettes->toolColors();
        const QModelIndex second = tools->model()->index(1, 0);
        QTest::mouseClick(tools->viewport(), Qt::LeftButton, {}, tools->visualRect(second).center());
        QCOMPARE(m_model->color(), tools->swatches().at(second).color);
        QTest::keyClick(tools, Qt::Key_Right);
        QCOMPARE(m_model->color(), tools->swatches().at(tools->model()->index(2, 0)).color);
        QCOMPARE(tools->swatches().rowCount(), 15);
        QCOMPARE(palettes->webColors()->swatches().rowCount(), 139);
        // Fifteen swatches need two rows; none may be cut off.
        QCOMPARE(tools->verticalScrollBar()->maximum(), 0);
        QVERIFY(tools->viewport()->rect().contains(tools->visualRect(tools->model()->index(14, 0))));
    }

    void comingToTheSwatchesByTabChoosesNothing()
    {
        m_content->setMode(PickerMode::Palettes);
        auto *palettes = static_cast<PalettesPage *>(m_content->page(PickerMode::Palettes));
        m_model->setColor(blue);
        palettes->webColors()->setFocus(Qt::TabFocusReason);
        QCOMPARE(m_model->color(), blue);
    }

    void namesSwatches()
    {
        auto *palettes = static_cast<PalettesPage *>(m_content->page(PickerMode::Palettes));
        const SwatchModel &web = palettes->webColors()->swatches();
        const QModelIndex tomato = web.indexOf(rgbaFrom(QColor(0xff, 0x63, 0x47)));
        QCOMPARE(web.data(tomato, Qt::AccessibleTextRole).toString(), u"tomato, #ff6347"_s);
        QCOMPARE(web.data(tomato, Qt::ToolTipRole).toString(), u"tomato, #ff6347"_s);
    }

    void showsRecentColors()
    {
        auto *page = static_cast<RecentPage *>(m_content->page(PickerMode::Recent));
        QCOMPARE(page->swatches()->swatches().rowCount(), 0);
        RecentColors recent;
        recent.add(blue);
        m_content->setRecentColors(recent);
        QCOMPARE(page->swatches()->swatches().rowCount(), 1);
        m_content->setMode(PickerMode::Recent);
        QTRY_VERIFY(page->swatches()->isVisible());
        QTest::keyClick(page->swatches(), Qt::Key_Right);
        page->swatches()->setCurrentIndex(page->swatches()->model()->index(0, 0));
        QTest::keyClick(page->swatches(), Qt::Key_Return);
        QCOMPARE(m_model->color(), blue);
    }

    void takesATypedCode()
    {
        m_model->setColor({0.0F, 0.0F, 0.0F, 0.4F});
        m_content->codeField()->setFocus();
        m_content->codeField()->selectAll();
        QTest::keyClicks(m_content->codeField(), u"#8f0"_s);
        QCOMPARE(text(), u"#88ff00"_s);
        // Opacity is not part of the code; what is typed stands until typing ends.
        QCOMPARE(m_model->color().alpha, 0.4F);
        QCOMPARE(m_content->codeField()->text(), u"#8f0"_s);
        QTest::keyClick(m_content->codeField(), Qt::Key_Return);
        QCOMPARE(m_content->codeField()->text(), u"#88ff00"_s);
    }

    void pipette_data()
    {
        QTest::addColumn<QString>("end");
        QTest::addColumn<bool>("complains");
        QTest::addColumn<QString>("color");

        QTest::newRow("picked") << u"picked"_s << false << u"#0000ff"_s;
        QTest::newRow("cancelled") << u"cancelled"_s << false << u"#ffffff"_s;
        QTest::newRow("failed") << u"failed"_s << true << u"#ffffff"_s;
    }
    void pipette()
    {
        QFETCH(QString, end);
        QFETCH(bool, complains);
        m_content->pipetteButton()->click();
        QCOMPARE(m_pipette->picks, 1);
        QVERIFY(!m_content->pipetteButton()->isEnabled());
        if (end == u"picked")
            emit m_pipette->picked(blue);
        else if (end == u"cancelled")
            emit m_pipette->cancelled();
        else
            emit m_pipette->failed();
        QVERIFY(m_content->pipetteButton()->isEnabled());
        QCOMPARE(m_content->complaint()->isVisible(), complains);
        QCOMPARE(m_content->complaint()->text().isEmpty(), !complains);
        QTEST(text(), "color");
        m_content->pipetteButton()->click();
        QVERIFY(!m_content->complaint()->isVisible());
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

    void opensWhereThereIsRoom_data()
    {
        QTest::addColumn<QRectF>("control");
        QTest::addColumn<Qt::Edge>("edge");
        QTest::addColumn<PopoverPosition>("position");

        QTest::newRow("to the right") << QRectF(400, 400, 80, 40) << Qt::RightEdge << PopoverPosition::Right;
        QTest::newRow("to the left where the right is too narrow")
            << QRectF(880, 400, 80, 40) << Qt::RightEdge << PopoverPosition::Left;
        QTest::newRow("near the upper edge")
            << QRectF(400, 740, 80, 40) << Qt::RightEdge << PopoverPosition::RightArrowNearTop;
        QTest::newRow("near the lower edge")
            << QRectF(400, 20, 80, 40) << Qt::RightEdge << PopoverPosition::RightArrowNearBottom;
        QTest::newRow("below") << QRectF(400, 600, 80, 40) << Qt::BottomEdge << PopoverPosition::Below;
        QTest::newRow("above where below is too low")
            << QRectF(400, 100, 80, 40) << Qt::BottomEdge << PopoverPosition::Above;
        QTest::newRow("a control as wide as the screen leaves above or below")
            << QRectF(0, 600, 1000, 40) << Qt::RightEdge << PopoverPosition::Below;
        QTest::newRow("nowhere") << QRectF(0, 0, 1000, 800) << Qt::RightEdge << PopoverPosition::Right;
    }
    void opensWhereThereIsRoom()
    {
        QFETCH(QRectF, control);
        QFETCH(Qt::Edge, edge);
        const PopoverPlacement placement =
            popoverPlacement(control, QSizeF(250, 400), QRectF(0, 0, 1000, 800), edge, PopoverMetrics());
        QTEST(placement.position, "position");
    }
};

QTEST_MAIN(PickerContentTest)
#include "PickerContentTest.moc"
