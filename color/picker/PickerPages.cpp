// SPDX-License-Identifier: MIT
#include "PickerPages.h"

#include "ChannelRow.h"
#include "ColorWheel.h"
#include "PickerMetrics.h"
#include "PickerModel.h"
#include "SwatchList.h"
#include "ToolPalette.h"
#include "color/picking/RecentColors.h"
#include "tool/style/DropDownStyle.h"
#include "widgets/style/Fonts.h"

#include <QComboBox>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int fontSize = 12;

/// Flat like the fields below it, with the arrow of the other tools' boxes.
const auto flatComboBox = uR"(
    QComboBox { background: palette(base); border: 1px solid palette(mid); border-radius: 3px; padding: 3px 6px; }
    QComboBox:focus { border: 2px solid palette(highlight); padding: 2px 5px; }
    QComboBox::drop-down { border: 0; width: 24px; }
    QComboBox::down-arrow { image: url(:/images/dropdown_arrow.svg); width: 10px; height: 10px; }
)"_s;

QVBoxLayout *columnOn(QWidget *page)
{
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    layout->setSpacing(metrics::pickerSpacing);
    return layout;
}

QLabel *heading(const QString &text)
{
    auto *label = new QLabel(text);
    label->setFont(latoBold(fontSize));
    return label;
}

} // namespace

WheelPage::WheelPage(PickerModel *model, QWidget *parent) : QWidget(parent), m_wheel(new ColorWheel(model))
{
    QVBoxLayout *layout = columnOn(this);
    layout->addWidget(m_wheel, 1);
    layout->addWidget(new ChannelRow(ColorChannel::Brightness, model));
}

SlidersPage::SlidersPage(PickerModel *model, QWidget *parent)
    : QWidget(parent), m_kind(new QComboBox), m_sliders(new QStackedWidget)
{
    m_kind->setFont(latoRegular(fontSize));
    m_kind->setStyleSheet(flatComboBox);
    styleDropDown(m_kind);
    // On X11 and Wayland the name of a drop-down list is its choice.
    m_kind->setAccessibleName(qtTrId("COLOR_SLIDERS_KIND"));
    m_kind->setAccessibleDescription(qtTrId("COLOR_SLIDERS_KIND"));
    QVBoxLayout *layout = columnOn(this);
    layout->addWidget(m_kind);
    layout->addWidget(m_sliders);
    layout->addStretch(1);
    addKind(qtTrId("COLOR_MODE_RGB"), {ColorChannel::Red, ColorChannel::Green, ColorChannel::Blue}, model);
    addKind(qtTrId("COLOR_MODE_HSB"), {ColorChannel::Hue, ColorChannel::Saturation, ColorChannel::Brightness}, model);
    addKind(qtTrId("COLOR_MODE_GRAY"), {ColorChannel::Gray}, model);
    connect(m_kind, &QComboBox::currentIndexChanged, m_sliders, &QStackedWidget::setCurrentIndex);
}

void SlidersPage::addKind(const QString &name, const QList<ColorChannel> &channels, PickerModel *model)
{
    auto *page = new QWidget;
    QVBoxLayout *layout = columnOn(page);
    for (const ColorChannel channel : channels)
        layout->addWidget(new ChannelRow(channel, model));
    layout->addStretch(1);
    m_sliders->addWidget(page);
    m_kind->addItem(name);
}

PalettesPage::PalettesPage(PickerModel *model, QWidget *parent)
    : QWidget(parent), m_model(model), m_toolColors(new SwatchList), m_webColors(new SwatchList), m_name(new QLabel)
{
    m_toolColors->setColors(toolPalette());
    m_toolColors->setGrowsWithContent(true);
    m_toolColors->setAccessibleName(qtTrId("COLOR_PALETTE_LUMORA"));
    m_webColors->setColors(lumora::webColors());
    m_webColors->setAccessibleName(qtTrId("COLOR_PALETTE_WEB"));
    m_name->setFont(latoRegular(fontSize));

    QVBoxLayout *layout = columnOn(this);
    layout->addWidget(heading(qtTrId("COLOR_PALETTE_LUMORA")));
    layout->addWidget(m_toolColors);
    layout->addWidget(heading(qtTrId("COLOR_PALETTE_WEB")));
    layout->addWidget(m_webColors, 1);
    layout->addWidget(m_name);

    for (SwatchList *list : {m_toolColors, m_webColors})
        connect(list, &SwatchList::colorChosen, model, &PickerModel::setColor);
    connect(model, &PickerModel::pickedChanged, this, &PalettesPage::showPicked);
    showPicked();
}

void PalettesPage::showPicked()
{
    QString name;
    for (SwatchList *list : {m_webColors, m_toolColors}) {
        list->showColor(m_model->color());
        const QModelIndex index = list->swatches().indexOf(m_model->color());
        if (index.isValid())
            name = list->swatches().data(index, Qt::ToolTipRole).toString();
    }
    m_name->setText(name);
}

RecentPage::RecentPage(PickerModel *model, QWidget *parent)
    : QWidget(parent), m_swatches(new SwatchList), m_empty(new QLabel(qtTrId("COLOR_RECENT_EMPTY")))
{
    m_swatches->setAccessibleName(qtTrId("COLOR_MODE_RECENT"));
    m_empty->setFont(latoRegular(fontSize));
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignCenter);
    QVBoxLayout *layout = columnOn(this);
    layout->addWidget(m_swatches, 1);
    layout->addWidget(m_empty, 1);
    connect(m_swatches, &SwatchList::colorChosen, model, &PickerModel::setColor);
    setRecentColors({});
}

void RecentPage::setRecentColors(const RecentColors &recent)
{
    std::vector<NamedColor> colors;
    for (const RgbaColor &color : recent.colors())
        colors.push_back({{}, color});
    m_empty->setVisible(colors.empty());
    m_swatches->setVisible(!colors.empty());
    m_swatches->setColors(std::move(colors));
}

} // namespace lumora
