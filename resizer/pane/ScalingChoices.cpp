// SPDX-License-Identifier: MIT
#include "ScalingChoices.h"

#include "tool/JobResult.h"
#include "tool/style/DropDownStyle.h"
#include "tool/style/ElidedLabel.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/SliderStyle.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QSlider>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int headingSize = 15;
constexpr int textSize = 13;
constexpr int fieldHeight = 36;
constexpr int sideMargin = 16;
constexpr int gap = 8;
constexpr int usualQuality = 80;

/// In the order of the list.
enum FormatChoice { LikeSource, Png, LosslessWebP, LossyWebP };
/// The list of densities to scale from begins with these.
enum FromChoice { Largest, Drawings, FirstDensity };

/// In the order of `densityLayouts`.
QStringList layoutNames()
{
    return {qtTrId("SCALER_IOS"), qtTrId("SCALER_ANDROID"), qtTrId("SCALER_FLUTTER"), qtTrId("SCALER_REACT_NATIVE"),
            qtTrId("SCALER_WEB")};
}

/// As people name the density in projects of the layout.
QString nameOf(const Density &density, const DensityLayout &layout)
{
    return layout.name == "android"_L1 ? bucketText(density) : densityText(density);
}

} // namespace

ScalingChoices::ScalingChoices(QWidget *parent)
    : QWidget(parent), m_layouts(new QComboBox(this)), m_froms(new QComboBox(this)), m_formats(new QComboBox(this)),
      m_quality(new QSlider(Qt::Horizontal, this)), m_qualityLabel(new QLabel(this)),
      m_replace(new CheckboxButton(this)), m_place(new ElidedLabel(this)), m_placeButton(new IconButton(this))
{
    setUp(m_layouts, qtTrId("SCALER_LAYOUT"));
    m_layouts->addItems(layoutNames());
    setUp(m_froms, qtTrId("SCALER_FROM"));
    setUp(m_formats, qtTrId("SCALER_FORMAT"));
    m_formats->addItems(
        {qtTrId("SCALER_FORMAT_SOURCE"), u"PNG"_s, qtTrId("SCALER_FORMAT_LOSSLESS"), qtTrId("SCALER_FORMAT_LOSSY")});
    setUpQuality();
    m_replace->setText(qtTrId("SCALER_REPLACE"));
    m_replace->setToolTip(qtTrId("SCALER_REPLACE_TIP"));
    styleLabel(m_place, latoRegular(textSize), palette::chromeText);
    m_placeButton->setNormalColor(palette::resizer);
    m_placeButton->setHoverColor(palette::resizerBorder);
    m_placeButton->setActiveColor(palette::resizerBorder);
    m_placeButton->setFixedHeight(fieldHeight);

    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setWidget(makeContent());
    area->viewport()->setAutoFillBackground(false);
    area->widget()->setAutoFillBackground(false);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(area);

    showDensities();
    setDestination({});
    connect(m_layouts, &QComboBox::currentIndexChanged, this, [this] {
        showDensities();
        emit changed();
    });
    connect(m_froms, &QComboBox::currentIndexChanged, this, [this] {
        enableBoxes();
        emit changed();
    });
    connect(m_formats, &QComboBox::currentIndexChanged, this, [this] {
        showQuality();
        emit changed();
    });
    connectBox(m_replace);
    connect(m_placeButton, &IconButton::clicked, this, [this] {
        if (m_destination.isEmpty())
            emit destinationWanted();
        else
            setDestination({});
    });
}

void ScalingChoices::setUp(QComboBox *choice, const QString &name)
{
    choice->setAccessibleName(name);
    choice->setToolTip(name);
    choice->setFixedHeight(fieldHeight);
    choice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    frameDropDown(choice);
    styleDropDown(choice);
}

void ScalingChoices::setUpQuality()
{
    m_quality->setRange(0, 100);
    m_quality->setPageStep(10);
    m_quality->setValue(usualQuality);
    m_quality->setAccessibleName(qtTrId("SCALER_QUALITY_NAME"));
    m_quality->setToolTip(qtTrId("SCALER_QUALITY_NAME"));
    styleSlider(m_quality, palette::resizer);
    styleLabel(m_qualityLabel, latoRegular(textSize), palette::chromeText);
    connect(m_quality, &QSlider::valueChanged, this, &ScalingChoices::showQuality);
    showQuality();
}

void ScalingChoices::addHeading(QVBoxLayout *column, const QString &text, QWidget *field)
{
    auto *heading = new QLabel(text, this);
    styleLabel(heading, latoBold(headingSize), palette::resizer);
    heading->setBuddy(field);
    column->addSpacing(gap / 2);
    column->addWidget(heading);
}

QWidget *ScalingChoices::makeContent()
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(sideMargin, 0, sideMargin, 0);
    column->setSpacing(gap);
    addHeading(column, qtTrId("SCALER_LAYOUT"), m_layouts);
    column->addWidget(m_layouts);
    addHeading(column, qtTrId("SCALER_FROM"), m_froms);
    column->addWidget(m_froms);
    addHeading(column, qtTrId("SCALER_TO"));
    m_boxGrid = new QGridLayout;
    m_boxGrid->setSpacing(gap);
    m_boxGrid->setColumnStretch(0, 1);
    m_boxGrid->setColumnStretch(1, 1);
    column->addLayout(m_boxGrid);
    addHeading(column, qtTrId("SCALER_FORMAT"), m_formats);
    column->addWidget(m_formats);
    column->addWidget(m_qualityLabel);
    column->addWidget(m_quality);
    addHeading(column, qtTrId("SCALER_PLACE"));
    column->addWidget(m_place);
    column->addWidget(m_placeButton);
    column->addWidget(m_replace);
    column->addStretch(1);
    return content;
}

const DensityLayout &ScalingChoices::layoutInUse() const
{
    return densityLayouts()[static_cast<std::size_t>(std::max(m_layouts->currentIndex(), 0))];
}

void ScalingChoices::connectBox(CheckboxButton *box)
{
    connect(box, &CheckboxButton::clicked, this, [this, box] {
        box->setActive(!box->isActive());
        emit changed();
    });
}

void ScalingChoices::showDensities()
{
    const DensityLayout &layout = layoutInUse();
    const QSignalBlocker silent(m_froms);
    const int kept = std::min(m_froms->currentIndex(), static_cast<int>(Drawings));
    m_froms->clear();
    m_froms->addItems({qtTrId("SCALER_FROM_LARGEST"), qtTrId("SCALER_FROM_SVG")});
    for (auto &[density, box] : m_boxes)
        delete box;
    m_boxes.clear();
    // Tab follows the order on the screen.
    QWidget *before = m_froms;
    for (const Density &density : layout.densities) {
        m_froms->addItem(nameOf(density, layout));
        auto *box = new CheckboxButton(m_boxGrid->parentWidget());
        box->setText(nameOf(density, layout));
        box->setActive(std::ranges::find(layout.usual, density) != layout.usual.end());
        connectBox(box);
        const auto place = static_cast<int>(m_boxes.size());
        m_boxGrid->addWidget(box, place / 2, place % 2);
        box->show();
        setTabOrder(before, box);
        before = box;
        m_boxes.emplace_back(density, box);
    }
    m_froms->setCurrentIndex(std::max(kept, 0));
    enableBoxes();
}

void ScalingChoices::enableBoxes()
{
    const int from = m_froms->currentIndex() - FirstDensity;
    for (std::size_t index = 0; index < m_boxes.size(); ++index)
        m_boxes[index].second->setEnabled(from < static_cast<int>(index));
}

void ScalingChoices::showQuality()
{
    m_qualityLabel->setText(qtTrId("SCALER_QUALITY").replace("[QUALITY]"_L1, QString::number(m_quality->value())));
    const bool isLossy = m_formats->currentIndex() == LossyWebP;
    m_quality->setVisible(isLossy);
    m_qualityLabel->setVisible(isLossy);
}

void ScalingChoices::setDestination(const QString &folder)
{
    m_destination = folder;
    m_place->setText(folder.isEmpty() ? qtTrId("SCALER_BESIDE") : folder);
    m_placeButton->setText(folder.isEmpty() ? qtTrId("SCALER_OTHER_FOLDER") : qtTrId("SCALER_BACK_BESIDE"));
    emit changed();
}

DensityRequest ScalingChoices::request() const
{
    DensityRequest request;
    request.layout = &layoutInUse();
    const int from = m_froms->currentIndex();
    if (from == Drawings)
        request.kind = SourceKind::Drawings;
    else if (from >= FirstDensity)
        request.from = m_boxes[static_cast<std::size_t>(from - FirstDensity)].first;
    for (const auto &[density, box] : m_boxes) {
        if (box->isActive() && box->isEnabled())
            request.to.push_back(density);
    }
    request.destination = m_destination;
    switch (m_formats->currentIndex()) {
    case Png:
        request.format = ScaledFormat::Png;
        break;
    case LosslessWebP:
    case LossyWebP:
        request.format = ScaledFormat::WebP;
        break;
    default:
        break;
    }
    request.existing = m_replace->isActive() ? ExistingFiles::Replace : ExistingFiles::Keep;
    return request;
}

std::optional<int> ScalingChoices::webpQuality() const
{
    return m_formats->currentIndex() == LossyWebP ? std::optional(m_quality->value()) : std::nullopt;
}

} // namespace lumora
