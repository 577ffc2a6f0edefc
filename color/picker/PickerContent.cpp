// SPDX-License-Identifier: MIT
#include "PickerContent.h"

#include "ChannelRow.h"
#include "ColorSlider.h"
#include "HexField.h"
#include "PickerMetrics.h"
#include "PickerModel.h"
#include "PickerPages.h"
#include "SwatchList.h"
#include "color/ColorCode.h"

#include "color/pipette/Pipette.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/NamedImage.h"
#include "widgets/style/Palette.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QSpinBox>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int fontSize = 12;
constexpr int codeFontSize = 13;

} // namespace

PickerContent::PickerContent(PickerModel *model, QWidget *parent)
    : QWidget(parent), m_model(model), m_pages(new QStackedWidget),
      m_opacity(new ChannelRow(ColorChannel::Opacity, model)), m_swatch(new SwatchWidget), m_code(new HexField),
      m_pipetteButton(new QToolButton), m_complaint(new QLabel)
{
    QPalette colors = QWidget::palette();
    colors.setColor(QPalette::WindowText, palette::chromeText);
    colors.setColor(QPalette::Text, palette::chromeText);
    colors.setColor(QPalette::ButtonText, palette::chromeText);
    setPalette(colors);
    m_complaint->setFont(latoRegular(fontSize));
    m_complaint->setWordWrap(true);
    m_complaint->hide();
    QPalette warning = m_complaint->palette();
    warning.setColor(QPalette::WindowText, palette::errorDark);
    m_complaint->setPalette(warning);

    auto *layout = new QVBoxLayout(this);
    constexpr int margin = metrics::pickerMargin;
    layout->setContentsMargins(margin, margin / 2, margin, margin);
    layout->setSpacing(metrics::pickerSpacing);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_opacity);
    layout->addLayout(makeCodeRow());
    layout->addWidget(m_complaint);

    setPipette(makeScreenPipette());
    connect(m_model, &PickerModel::pickedChanged, this, &PickerContent::showPicked);
    connectCode();
    connect(m_pipetteButton, &QToolButton::clicked, this, &PickerContent::pickFromScreen);
    m_pages->setCurrentWidget(page(m_mode));
    showPicked();
    codeFinished();
}

PickerContent::~PickerContent()
{
    // A field that is deleted while it has the focus reports that editing is finished.
    m_code->disconnect(this);
}

QLayout *PickerContent::makeCodeRow()
{
    m_swatch->setFixedSize(2 * metrics::pickerFieldHeight, metrics::pickerFieldHeight);
    m_code->setFont(latoBold(codeFontSize));
    m_code->setFixedHeight(metrics::pickerFieldHeight);
    m_code->setAccessibleName(qtTrId("COLOR_HEX"));
    m_code->setToolTip(qtTrId("COLOR_HEX"));
    m_pipetteButton->setIcon(NamedImage(u"picker_pipette"_s).icon());
    m_pipetteButton->setFixedSize(metrics::pickerFieldHeight + 4, metrics::pickerFieldHeight);
    m_pipetteButton->setAutoRaise(true);
    m_pipetteButton->setFocusPolicy(Qt::StrongFocus);
    m_pipetteButton->setAccessibleName(qtTrId("COLOR_PIPETTE"));
    m_pipetteButton->setToolTip(qtTrId("COLOR_PIPETTE"));

    auto *row = new QHBoxLayout;
    row->setSpacing(metrics::pickerSpacing);
    row->addWidget(m_swatch);
    row->addWidget(m_code, 1);
    row->addWidget(m_pipetteButton);
    return row;
}

void PickerContent::setMode(PickerMode mode)
{
    m_mode = mode;
    m_pages->setCurrentWidget(page(mode));
}

QWidget *PickerContent::page(PickerMode mode)
{
    QWidget *&page = m_pageOfMode[mode];
    if (page != nullptr)
        return page;
    switch (mode) {
    case PickerMode::Wheel:
        page = new WheelPage(m_model);
        break;
    case PickerMode::Sliders:
        page = new SlidersPage(m_model);
        break;
    case PickerMode::Palettes:
        page = new PalettesPage(m_model);
        break;
    case PickerMode::Recent: {
        auto *recent = new RecentPage(m_model);
        recent->setRecentColors(m_recent);
        page = recent;
        break;
    }
    }
    m_pages->addWidget(page);
    putBehindInTabOrder(page);
    return page;
}

void PickerContent::putBehindInTabOrder(const QWidget *page)
{
    const QList<QWidget *> controls = page->findChildren<QWidget *>();
    const auto last = std::find_if(controls.crbegin(), controls.crend(), [this](const QWidget *control) {
        return (control->focusPolicy() & Qt::TabFocus) != 0 && control->focusProxy() == nullptr &&
               control->window() == window();
    });
    // From the last to the first, since setTabOrder() moves no widget that already comes next, even around the end of
    // the chain.
    for (QWidget *control :
         std::initializer_list<QWidget *>{m_pipetteButton, m_code, m_opacity->number(), m_opacity->slider()})
        setTabOrder(*last, control);
}

bool PickerContent::showsAlpha() const
{
    return !m_opacity->isHidden();
}

void PickerContent::setShowsAlpha(bool shows)
{
    m_opacity->setVisible(shows);
}

void PickerContent::setRecentColors(const RecentColors &recent)
{
    m_recent = recent;
    if (QWidget *known = m_pageOfMode.value(PickerMode::Recent))
        static_cast<RecentPage *>(known)->setRecentColors(recent);
}

void PickerContent::setPipette(std::unique_ptr<Pipette> pipette)
{
    m_pipette = std::move(pipette);
    connect(m_pipette.get(), &Pipette::picked, this, &PickerContent::endPicking);
    connect(m_pipette.get(), &Pipette::picked, m_model, &PickerModel::setColor);
    connect(m_pipette.get(), &Pipette::canceled, this, &PickerContent::endPicking);
    connect(m_pipette.get(), &Pipette::failed, this, &PickerContent::screenFailed);
}

void PickerContent::showPicked()
{
    m_swatch->setColor(m_model->color());
    // While a code is being typed, the color follows it and does not change it.
    if (!m_code->hasFocus() || !m_code->isModified())
        codeFinished();
}

void PickerContent::connectCode()
{
    connect(m_code, &HexField::typed, m_code, &HexField::applyTypingRule);
    connect(m_code, &HexField::pasteWanted, this, &PickerContent::paste);
    connect(m_code, &HexField::digitsCompleted, this, &PickerContent::digitsCompleted);
    connect(m_code, &HexField::colorPasted, this, &PickerContent::takeCode);
    connect(m_code, &QLineEdit::editingFinished, this, &PickerContent::codeFinished);
}

void PickerContent::paste()
{
    const QMimeData *content = QGuiApplication::clipboard()->mimeData();
    const auto color = content == nullptr ? QColor() : qvariant_cast<QColor>(content->colorData());
    if (!color.isValid()) {
        m_code->takeText(QGuiApplication::clipboard()->text());
        return;
    }
    m_model->setColor(rgbaFrom(color));
    codeFinished();
}

void PickerContent::digitsCompleted(const QString &digits)
{
    if (const Result<ColorCodes> codes = colorWithHexString(digits))
        takeCode(codes.value().color);
}

void PickerContent::takeCode(const RgbaColor &color)
{
    RgbaColor taken = color;
    if (taken.alpha >= 1.0F)
        taken.alpha = m_model->color().alpha;
    m_model->setColor(taken);
}

void PickerContent::codeFinished()
{
    m_code->showText(stringFromColor(m_model->color()));
}

void PickerContent::pickFromScreen()
{
    m_complaint->hide();
    m_pipetteHadFocus = m_pipetteButton->hasFocus();
    m_pipetteButton->setEnabled(false);
    m_pipette->pick(this);
}

void PickerContent::endPicking()
{
    m_pipetteButton->setEnabled(true);
    // A disabled button would pass the focus on.
    if (m_pipetteHadFocus)
        m_pipetteButton->setFocus();
}

void PickerContent::screenFailed()
{
    endPicking();
    m_complaint->setText(qtTrId("COLOR_PIPETTE_FAILED_MESSAGE"));
    m_complaint->show();
}

} // namespace lumora
