// SPDX-License-Identifier: MIT
#include "ModelFilterView.h"

#include "ModelTexts.h"
#include "VersionRange.h"
#include "devices/today/ModelChoices.h"
#include "devices/today/ScreenClass.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/DropDownStyle.h"
#include "tool/style/FieldStyle.h"
#include "tool/style/LabelStyle.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"
#include "widgets/style/SlimScrollBars.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int headingSize = 15;
constexpr int fieldHeight = 36;
/// The scroll bar of the requirements is in the margin, so that they are as wide as the field and the button.
constexpr int sideMargin = 16;

QString keyText(std::string_view key)
{
    return QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

} // namespace

ModelFilterView::ModelFilterView(std::span<const DeviceModel> models, QWidget *parent)
    : QWidget(parent), m_search(new QLineEdit(this)), m_range(new VersionRange(models)),
      m_chips(makeChoice(qtTrId("DEVICES_FACT_CHIP"), qtTrId("DEVICES_ANY_CHIP"))),
      m_screens(makeChoice(qtTrId("DEVICES_FACT_CLASS"), qtTrId("DEVICES_ANY_SCREEN"))),
      m_biometries(makeChoice(qtTrId("DEVICES_FACT_BIOMETRY"), qtTrId("DEVICES_ANY_BIOMETRY"))), m_reset(new IconButton)
{
    setUpSearch();
    setUpChoices(models);
    styleButton(m_reset, qtTrId("RESET"), u"button_icon_reset"_s, palette::devices, palette::devicesBorder);
    m_reset->setFixedHeight(fieldHeight);
    connect(m_reset, &IconButton::clicked, this, &ModelFilterView::reset);
    connect(m_range, &VersionRange::changed, this, &ModelFilterView::changed);

    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The requirements keep their width when it is not needed; it is not painted then.
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    area->setWidgetResizable(true);
    area->setWidget(makeRequirements());
    area->viewport()->setAutoFillBackground(false);
    area->widget()->setAutoFillBackground(false);
    const auto inset = [](QWidget *widget) {
        auto *row = new QHBoxLayout;
        row->setContentsMargins(sideMargin, 0, sideMargin, 0);
        row->addWidget(widget);
        return row;
    };
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addLayout(inset(m_search));
    column->addWidget(area, 1);
    column->addLayout(inset(m_reset));
}

void ModelFilterView::setUpSearch()
{
    m_search->setPlaceholderText(qtTrId("DEVICES_SEARCH"));
    m_search->setAccessibleName(qtTrId("DEVICES_SEARCH"));
    m_search->setClearButtonEnabled(true);
    styleField(m_search, palette::devices);
    connect(m_search, &QLineEdit::textChanged, this, &ModelFilterView::changed);
}

QComboBox *ModelFilterView::makeChoice(const QString &name, const QString &any)
{
    auto *choice = new QComboBox(this);
    choice->addItem(any);
    choice->setAccessibleName(name);
    // The platform gives the chosen text as the name.
    choice->setAccessibleDescription(name);
    choice->setToolTip(name);
    choice->setFixedHeight(fieldHeight);
    choice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    frameDropDown(choice);
    styleDropDown(choice);
    connect(choice, &QComboBox::currentIndexChanged, this, &ModelFilterView::changed);
    return choice;
}

void ModelFilterView::setUpChoices(std::span<const DeviceModel> models)
{
    for (const QString &chip : chipNames(models))
        m_chips->addItem(chip, chip);
    for (const ScreenClass &screen : screenClasses()) {
        const QString name = qtTrId("DEVICES_CLASS")
                                 .replace("[FAMILY]"_L1, keyText(familyName(screen.family)))
                                 .replace("[CLASS]"_L1, valueWords(CardFact::ScreenClassKey, keyText(screen.key)));
        m_screens->addItem(name, keyText(screen.key));
    }
    for (const Biometry biometry : {Biometry::None, Biometry::TouchId, Biometry::FaceId})
        m_biometries->addItem(biometryWords(biometry), static_cast<int>(biometry));
}

CheckboxButton *ModelFilterView::makeBox(const QString &text)
{
    auto *box = new CheckboxButton(this);
    box->setText(text);
    box->setToolTip(text);
    connect(box, &CheckboxButton::clicked, this, [this, box] {
        box->setActive(!box->isActive());
        emit changed();
    });
    return box;
}

void ModelFilterView::addHeading(QVBoxLayout *column, const QString &text)
{
    auto *heading = new QLabel(text);
    styleLabel(heading, latoBold(headingSize), palette::devices);
    column->addSpacing(8);
    column->addWidget(heading);
}

QWidget *ModelFilterView::makeRequirements()
{
    auto *content = new QWidget;
    auto *row = new QHBoxLayout(content);
    row->setContentsMargins({});
    row->setSpacing(0);
    auto *column = new QVBoxLayout;
    row->addSpacing(sideMargin);
    row->addLayout(column, 1);
    row->addSpacing(sideMargin - SlimScrollBars::extent);
    column->setSpacing(8);
    column->addWidget(m_range);
    addHeading(column, qtTrId("DEVICES_FAMILY"));
    for (const DeviceFamily family : {DeviceFamily::IPhone, DeviceFamily::IPad, DeviceFamily::IPod}) {
        m_families.emplace_back(family, makeBox(keyText(familyName(family))));
        column->addWidget(m_families.back().second);
    }
    addHeading(column, qtTrId("DEVICES_HARDWARE"));
    for (QComboBox *choice : {m_chips, m_screens, m_biometries})
        column->addWidget(choice);
    for (const ModelFeature feature :
         {ModelFeature::DynamicIsland, ModelFeature::Lidar, ModelFeature::UsbC, ModelFeature::Cellular5G}) {
        m_features.emplace_back(feature, makeBox(featureWords(feature)));
        column->addWidget(m_features.back().second);
    }
    addHeading(column, qtTrId("DEVICES_FACT_CAPABILITIES"));
    for (const ModelCapability &capability : modelCapabilities()) {
        m_capabilities.emplace_back(&capability, makeBox(keyText(capability.key)));
        column->addWidget(m_capabilities.back().second);
    }
    column->addStretch(1);
    return content;
}

ModelFilter ModelFilterView::filter() const
{
    ModelFilter filter;
    m_range->apply(filter);
    filter.search = m_search->text();
    for (const auto &[family, box] : m_families) {
        if (box->isActive())
            filter.families.insert(family);
    }
    for (const auto &[feature, box] : m_features) {
        if (box->isActive())
            filter.features.insert(feature);
    }
    for (const auto &[capability, box] : m_capabilities) {
        if (box->isActive())
            filter.capabilities.push_back(capability);
    }
    if (m_chips->currentIndex() > 0)
        filter.chips << m_chips->currentData().toString();
    if (m_screens->currentIndex() > 0)
        filter.screenClasses << m_screens->currentData().toString();
    if (m_biometries->currentIndex() > 0)
        filter.biometries.insert(static_cast<Biometry>(m_biometries->currentData().toInt()));
    return filter;
}

void ModelFilterView::require(const ModelFilter &filter)
{
    const bool before = blockSignals(true);
    reset();
    m_range->require(filter);
    for (const auto &[family, box] : m_families)
        box->setActive(filter.families.contains(family));
    for (const auto &[capability, box] : m_capabilities)
        box->setActive(std::ranges::find(filter.capabilities, capability) != filter.capabilities.end());
    blockSignals(before);
    emit changed();
}

void ModelFilterView::reset()
{
    const bool before = blockSignals(true);
    m_search->clear();
    m_range->reset();
    for (QComboBox *choice : {m_chips, m_screens, m_biometries})
        choice->setCurrentIndex(0);
    const auto untick = [](const auto &boxes) {
        for (const auto &[value, box] : boxes)
            box->setActive(false);
    };
    untick(m_families);
    untick(m_features);
    untick(m_capabilities);
    blockSignals(before);
    emit changed();
}

} // namespace lumora
