// SPDX-License-Identifier: MIT
#include "LookFields.h"

#include "ColorEntry.h"
#include "placeholders/LabelFont.h"
#include "tool/style/DropDownStyle.h"
#include "tool/style/FieldStyle.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/SliderStyle.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int headingSize = 15;
constexpr int textSize = 13;
constexpr int fieldHeight = 36;
constexpr int sideMargin = 16;
constexpr int gap = 6;
constexpr int usualQuality = 80;

/// In the order of the list.
enum FormatChoice { Png, LosslessWebP, LossyWebP, Svg };

} // namespace

LookFields::LookFields(QWidget *parent)
    : QWidget(parent), m_text(new QLineEdit(PictureLook().text, this)),
      m_foreground(new ColorEntry(PictureLook().foreground, this)),
      m_background(new ColorEntry(PictureLook().background, this)), m_formats(new QComboBox(this)),
      m_quality(new QSlider(Qt::Horizontal, this)), m_qualityLabel(new QLabel(this)), m_sizes(new QLineEdit(this)),
      m_keep(new IconButton(this)), m_refusal(new QLabel(this))
{
    styleField(m_text, palette::placeholders);
    m_text->setToolTip(qtTrId("PLACEHOLDER_TEXT_TIP"));
    m_foreground->setToolTip(qtTrId("PLACEHOLDER_COLOR_TIP"));
    m_background->setToolTip(qtTrId("PLACEHOLDER_COLOR_TIP"));
    setUpFormats();
    styleField(m_sizes, palette::placeholders);
    m_sizes->setPlaceholderText(u"1200x600 800x800@2x"_s);
    m_sizes->setToolTip(qtTrId("PLACEHOLDER_SIZES_TIP"));
    m_keep->setText(qtTrId("PLACEHOLDER_KEEP"));
    m_keep->setToolTip(qtTrId("PLACEHOLDER_KEEP_TIP"));
    m_keep->setNormalColor(palette::placeholders);
    m_keep->setHoverColor(palette::placeholdersBorder);
    m_keep->setActiveColor(palette::placeholdersBorder);
    m_keep->setFixedHeight(fieldHeight);
    styleLabel(m_refusal, latoRegular(textSize), palette::errorDark);
    m_refusal->setWordWrap(true);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(sideMargin, 0, sideMargin, 0);
    column->setSpacing(gap);
    addField(column, qtTrId("PLACEHOLDER_TEXT"), m_text);
    addField(column, qtTrId("PLACEHOLDER_FOREGROUND"), m_foreground);
    addField(column, qtTrId("PLACEHOLDER_BACKGROUND"), m_background);
    addField(column, qtTrId("SCALER_FORMAT"), m_formats);
    column->addWidget(m_qualityLabel);
    column->addWidget(m_quality);
    addField(column, qtTrId("PLACEHOLDER_OWN_SIZES"), m_sizes);
    column->addWidget(m_keep);
    column->addWidget(m_refusal);
    column->addStretch(1);
    for (QLineEdit *field : std::initializer_list<QLineEdit *>{m_text, m_sizes})
        connect(field, &QLineEdit::textChanged, this, &LookFields::react);
    connect(m_foreground, &ColorEntry::changed, this, &LookFields::react);
    connect(m_background, &ColorEntry::changed, this, &LookFields::react);
    connect(m_formats, &QComboBox::currentIndexChanged, this, &LookFields::showQuality);
    connect(m_quality, &QSlider::valueChanged, this, &LookFields::showQuality);
    connect(m_keep, &IconButton::clicked, this, &LookFields::keepWanted);
    showQuality();
    react();
}

void LookFields::addField(QVBoxLayout *column, const QString &name, QWidget *field)
{
    auto *heading = new QLabel(name, this);
    styleLabel(heading, latoBold(headingSize), palette::placeholdersBorder);
    field->setAccessibleName(name);
    heading->setBuddy(field);
    column->addWidget(heading);
    column->addWidget(field);
}

void LookFields::setUpFormats()
{
    m_formats->addItems({u"PNG"_s, qtTrId("SCALER_FORMAT_LOSSLESS"), qtTrId("SCALER_FORMAT_LOSSY"), u"SVG"_s});
    m_formats->setFixedHeight(fieldHeight);
    m_formats->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    frameDropDown(m_formats);
    styleDropDown(m_formats);
    m_quality->setRange(0, 100);
    m_quality->setPageStep(10);
    m_quality->setValue(usualQuality);
    m_quality->setAccessibleName(qtTrId("SCALER_QUALITY_NAME"));
    m_quality->setToolTip(qtTrId("SCALER_QUALITY_NAME"));
    styleSlider(m_quality, palette::placeholders);
    styleLabel(m_qualityLabel, latoRegular(textSize), palette::chromeText);
}

void LookFields::showQuality()
{
    m_qualityLabel->setText(qtTrId("SCALER_QUALITY").replace("[QUALITY]"_L1, QString::number(m_quality->value())));
    const bool isLossy = m_formats->currentIndex() == LossyWebP;
    m_quality->setVisible(isLossy);
    m_qualityLabel->setVisible(isLossy);
}

void LookFields::react()
{
    const QString reason = refusal();
    m_refusal->setText(reason);
    m_refusal->setVisible(!reason.isEmpty());
    m_keep->setEnabled(!sizes().empty());
    emit changed();
}

QString LookFields::refusal() const
{
    if (m_foreground->isRefused() || m_background->isRefused())
        return qtTrId("PLACEHOLDER_NO_COLOR");
    if (const QString missing = withoutShape(look().text, LabelFont()); !missing.isEmpty())
        return qtTrId("PLACEHOLDER_NO_SHAPE").replace("[TEXT]"_L1, missing);
    if (m_sizes->text().trimmed().isEmpty())
        return {};
    const auto read = sizesFromList(m_sizes->text());
    return read ? QString() : qtTrId("PLACEHOLDER_NO_SIZE").replace("[TEXT]"_L1, read.failure().subject);
}

std::vector<ListedSize> LookFields::sizes() const
{
    const auto read = sizesFromList(m_sizes->text());
    return read ? read.value() : std::vector<ListedSize>();
}

void LookFields::clearSizes()
{
    m_sizes->clear();
}

PictureLook LookFields::look() const
{
    PictureLook look;
    look.foreground = m_foreground->color();
    look.background = m_background->color();
    look.text = m_text->text();
    look.text.replace(u"\\n"_s, u"\n"_s);
    return look;
}

LabeledOptions LookFields::options() const
{
    switch (m_formats->currentIndex()) {
    case LosslessWebP:
        return {LabeledFormat::WebP, {}};
    case LossyWebP:
        return {LabeledFormat::WebP, m_quality->value()};
    case Svg:
        return {LabeledFormat::Svg, {}};
    default:
        return {};
    }
}

} // namespace lumora
