// SPDX-License-Identifier: MIT
#include "PickerTest.h"
#include "color/picker/ColorSlider.h"
#include "color/picker/SwatchList.h"

#include <QComboBox>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>

using namespace lumora;
using namespace Qt::StringLiterals;

class PickerPagesTest : public PickerTest
{
    Q_OBJECT

private slots:
    void sliders_data()
    {
        QTest::addColumn<ColorChannel>("channel");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("color");

        QTest::newRow("red") << ColorChannel::Red << 128 << u"#8096da"_s;
        QTest::newRow("green") << ColorChannel::Green << 0 << u"#3400da"_s;
        QTest::newRow("blue") << ColorChannel::Blue << 255 << u"#3496ff"_s;
        QTest::newRow("grey") << ColorChannel::Gray << 52 << u"#343434"_s;
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
        ChannelRow *channelRow = m_picker->row(channel);
        QVERIFY(channelRow != nullptr);
        for (const bool bySlider : {true, false}) {
            m_picker->model.setColor(before);
            QCOMPARE(channelRow->slider()->value(), channelRow->number()->value());
            if (bySlider)
                channelRow->slider()->setValue(number);
            else
                channelRow->number()->setValue(number);
            QCOMPARE(m_picker->code(), color);
            QCOMPARE(channelRow->slider()->value(), number);
            QCOMPARE(channelRow->number()->value(), number);
        }
    }

    void theKindChoosesTheSliders()
    {
        m_picker->content.setMode(PickerMode::Sliders);
        QComboBox *kind = static_cast<SlidersPage *>(m_picker->content.page(PickerMode::Sliders))->kind();
        QCOMPARE(kind->count(), 3);
        const auto shown = [this](ColorChannel channel) { return m_picker->row(channel)->isVisible(); };
        QVERIFY(shown(ColorChannel::Red) && !shown(ColorChannel::Hue) && !shown(ColorChannel::Gray));
        kind->setFocus();
        QTest::keyClick(kind, Qt::Key_Down);
        QVERIFY(!shown(ColorChannel::Red) && shown(ColorChannel::Hue) && !shown(ColorChannel::Gray));
        QTest::keyClick(kind, Qt::Key_Down);
        QVERIFY(!shown(ColorChannel::Red) && !shown(ColorChannel::Hue) && shown(ColorChannel::Gray));
    }

    void theListOfKindsShowsAllOfThemAndTheHighlightedOneCanBeRead()
    {
        m_picker->content.setMode(PickerMode::Sliders);
        QComboBox *kind = static_cast<SlidersPage *>(m_picker->content.page(PickerMode::Sliders))->kind();
        kind->showPopup();
        QAbstractItemView *list = kind->view();
        QVERIFY(QTest::qWaitForWindowExposed(list->window()));
        list->setCurrentIndex(kind->model()->index(1, 0));
        for (int row = 0; row < kind->count(); ++row)
            QVERIFY(list->viewport()->rect().contains(list->visualRect(kind->model()->index(row, 0))));
        const QRect row = list->visualRect(kind->model()->index(1, 0));
        const QImage picture = list->viewport()->grab(row).toImage();
        // The background and the brightest part of the text have enough contrast.
        const QColor ground = picture.pixelColor(picture.width() - 4, picture.height() / 2);
        int most = 0;
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 2; y < picture.height() - 2; ++y)
                most = std::max(most, std::abs(qGray(picture.pixel(x, y)) - qGray(ground.rgb())));
        }
        kind->hidePopup();
        QVERIFY2(most > 100, qPrintable(u"%1 on %2"_s.arg(most).arg(ground.name())));
        QVERIFY(qGray(ground.rgb()) < 160);
    }

    void whatASliderShowsDoesNotChangeTheColor()
    {
        m_picker->content.page(PickerMode::Sliders);
        // A color between two numbers of every channel.
        const RgbaColor between{0.20312F, 0.49321F, 0.71234F, 0.33333F};
        m_picker->model.setColor(between);
        QCOMPARE(m_picker->model.color(), between);
    }

    void hueAndSaturationOutlastBlack()
    {
        m_picker->content.page(PickerMode::Sliders);
        m_picker->model.setColor(rgbaFrom(QColor(0x34, 0x96, 0xda)));
        m_picker->row(ColorChannel::Brightness)->slider()->setValue(0);
        m_picker->row(ColorChannel::Brightness)->slider()->setValue(100);
        QCOMPARE(channelNumber(m_picker->model.picked(), ColorChannel::Hue), 205);
        QCOMPARE(channelNumber(m_picker->model.picked(), ColorChannel::Saturation), 76);
    }

    void aSliderFollowsPointerAndKeys()
    {
        m_picker->model.setColor({0.0F, 0.0F, 0.0F, 1.0F});
        m_picker->content.setMode(PickerMode::Sliders);
        QCoreApplication::processEvents();
        ColorSlider *slider = m_picker->row(ColorChannel::Red)->slider();
        QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(slider->width() - 1, slider->height() / 2));
        QCOMPARE(slider->value(), 255);
        QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(0, slider->height() / 2));
        QCOMPARE(slider->value(), 0);
        QTest::keyClick(slider, Qt::Key_Right);
        QCOMPARE(slider->value(), 1);
        QTest::keyClick(slider, Qt::Key_PageUp);
        QCOMPARE(slider->value(), 11);
        QTest::keyClick(slider, Qt::Key_End);
        QCOMPARE(m_picker->code(), u"#ff0000"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(slider)->role(), QAccessible::Slider);
        QCOMPARE(ShownPicker::valueOf(slider)->currentValue().toInt(), 255);
        QCOMPARE(QAccessible::queryAccessibleInterface(slider)->text(QAccessible::Name), u"Red"_s);
    }

    void choosesSwatchesByPointerAndKey()
    {
        m_picker->content.setMode(PickerMode::Palettes);
        QCoreApplication::processEvents();
        auto *palettes = m_picker->palettes();
        SwatchList *tools = palettes->toolColors();
        const QModelIndex second = tools->model()->index(1, 0);
        QTest::mouseClick(tools->viewport(), Qt::LeftButton, {}, tools->visualRect(second).center());
        QCOMPARE(m_picker->model.color(), tools->swatches().at(second).color);
        QTest::keyClick(tools, Qt::Key_Right);
        QCOMPARE(m_picker->model.color(), tools->swatches().at(tools->model()->index(2, 0)).color);
        QCOMPARE(tools->swatches().rowCount(), 15);
        QCOMPARE(palettes->webColors()->swatches().rowCount(), 139);
        // Fifteen swatches need two rows; neither may be cut off.
        QCOMPARE(tools->verticalScrollBar()->maximum(), 0);
        QVERIFY(tools->viewport()->rect().contains(tools->visualRect(tools->model()->index(14, 0))));
    }

    void choosesSwatchesByAssistiveTechnology()
    {
        SwatchList *web = m_picker->palettes()->webColors();
        m_picker->model.setColor(blue);
        QAccessibleInterface *swatch = QAccessible::queryAccessibleInterface(web)->child(5);
        QCOMPARE(swatch->text(QAccessible::Name), u"mintcream, #f5fffa"_s);
        swatch->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(m_picker->code(), u"#f5fffa"_s);
    }

    void aSwatchThatIsOnlyShownIsNotChosen()
    {
        PalettesPage *palettes = m_picker->palettes();
        QSignalSpy chosen(palettes->webColors(), &SwatchList::colorChosen);
        m_picker->model.setColor({1.0F, 0.3895F, 0.2795F, 1.0F});
        QCOMPARE(m_picker->code(), u"#ff6347"_s);
        QCOMPARE(palettes->webColors()->selectionModel()->selectedIndexes().size(), 1);
        QCOMPARE(chosen.count(), 0);
        QCOMPARE(m_picker->model.color().green, 0.3895F);
    }

    void comingToTheSwatchesByTabChoosesNothing()
    {
        m_picker->content.setMode(PickerMode::Palettes);
        auto *palettes = m_picker->palettes();
        m_picker->model.setColor(blue);
        palettes->webColors()->setFocus(Qt::TabFocusReason);
        QCOMPARE(m_picker->model.color(), blue);
    }

    void namesSwatches()
    {
        auto *palettes = m_picker->palettes();
        const SwatchModel &web = palettes->webColors()->swatches();
        const QModelIndex tomato = web.indexOf(rgbaFrom(QColor(0xff, 0x63, 0x47)));
        QCOMPARE(web.data(tomato, Qt::AccessibleTextRole).toString(), u"tomato, #ff6347"_s);
        QCOMPARE(web.data(tomato, Qt::ToolTipRole).toString(), u"tomato, #ff6347"_s);
    }

    void showsRecentColors()
    {
        auto *page = static_cast<RecentPage *>(m_picker->content.page(PickerMode::Recent));
        QCOMPARE(page->swatches()->swatches().rowCount(), 0);
        RecentColors recent;
        recent.add(blue);
        m_picker->content.setRecentColors(recent);
        QCOMPARE(page->swatches()->swatches().rowCount(), 1);
        m_picker->content.setMode(PickerMode::Recent);
        QTRY_VERIFY(page->swatches()->isVisible());
        QTest::keyClick(page->swatches(), Qt::Key_Right);
        page->swatches()->setCurrentIndex(page->swatches()->model()->index(0, 0));
        QTest::keyClick(page->swatches(), Qt::Key_Return);
        QCOMPARE(m_picker->model.color(), blue);
    }
};

QTEST_MAIN(PickerPagesTest)
#include "PickerPagesTest.moc"
