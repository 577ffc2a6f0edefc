// SPDX-License-Identifier: MIT
#include "ContrastView.h"

#include "CodeField.h"
#include "VerdictMark.h"
#include "color/WellColor.h"
#include "color/picker/BFPopoverColorWell.h"
#include "tool/style/LabelStyle.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QGridLayout>
#include <QLabel>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int titleSize = 18;
constexpr int ratioSize = 20;
constexpr int labelSize = 13;
constexpr QSize wellSize(64, 44);
constexpr int sampleHeight = 32;
constexpr int buttonHeight = 28;

} // namespace

ContrastView::ContrastView(QWidget *parent)
    : QWidget(parent), m_field(new CodeField(this)), m_well(new BFPopoverColorWell(this)), m_ratio(new QLabel(this)),
      m_sample(new QLabel(this))
{
    setUpControls();
    auto *title = new QLabel(qtTrId("COLOR_CONTRAST"), this);
    styleLabel(title, latoBold(titleSize), palette::color);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(0, 1);
    auto *heading = new QHBoxLayout;
    heading->addWidget(title, 1);
    heading->addWidget(m_ratio);
    grid->addLayout(heading, 0, 0, 1, 4);
    auto *input = new QHBoxLayout;
    input->setSpacing(8);
    input->addWidget(m_field, 1);
    input->addWidget(m_well);
    grid->addLayout(input, 1, 0, 1, 4);
    grid->addWidget(m_sample, 2, 0, 1, 4);
    addRow(grid, ContrastUse::Text, qtTrId("COLOR_TEXT"));
    addRow(grid, ContrastUse::LargeText, qtTrId("COLOR_LARGE_TEXT"));
    addRow(grid, ContrastUse::InterfacePart, qtTrId("COLOR_INTERFACE"));
    setBackground(m_background);
}

void ContrastView::setUpControls()
{
    m_field->setAccessibleName(qtTrId("COLOR_BACKGROUND_FIELD"));
    m_well->setAccessibleName(qtTrId("COLOR_BACKGROUND_WELL"));
    m_well->setFixedSize(wellSize);
    styleLabel(m_ratio, latoBold(ratioSize), palette::chromeText);
    m_ratio->setToolTip(qtTrId("COLOR_RATIO_TIP"));
    m_sample->setText(qtTrId("COLOR_SAMPLE"));
    m_sample->setAlignment(Qt::AlignCenter);
    m_sample->setAutoFillBackground(true);
    m_sample->setFixedHeight(sampleHeight);
    connect(m_field, &CodeField::colorTyped, this, &ContrastView::setBackground);
    connect(m_well, &ColorWell::colorPicked, this,
            [this](const ColorWell *well) { setBackground(wideColorFrom(well->color())); });
}

void ContrastView::addRow(QGridLayout *grid, ContrastUse use, const QString &name)
{
    UseRow &row = m_rows[static_cast<std::size_t>(use)];
    const int line = grid->rowCount();
    auto *label = new QLabel(name, this);
    styleLabel(label, latoRegular(labelSize), palette::chromeText);
    grid->addWidget(label, line, 0);
    row.aa = new VerdictMark(u"AA"_s, this);
    grid->addWidget(row.aa, line, 1);
    if (use != ContrastUse::InterfacePart) {
        row.aaa = new VerdictMark(u"AAA"_s, this);
        grid->addWidget(row.aaa, line, 2);
    }
    row.nearest = new IconButton(this);
    row.nearest->setText(qtTrId("COLOR_NEAREST"));
    row.nearest->setAccessibleName(name + u": "_s + qtTrId("COLOR_NEAREST"));
    row.nearest->setNormalColor(palette::color);
    row.nearest->setHoverColor(palette::colorBorder);
    row.nearest->setActiveColor(palette::colorBorder);
    row.nearest->setFixedHeight(buttonHeight);
    grid->addWidget(row.nearest, line, 3);
    connect(row.nearest, &IconButton::clicked, this, [this, use] {
        // The search takes too long for every step of a slider.
        const double ratio = m_table[static_cast<std::size_t>(use)].missed;
        if (const std::optional<WideColor> nearest = nearestWithContrast(m_color, m_background, ratio))
            emit colorWanted(*nearest);
    });
}

void ContrastView::setColor(const WideColor &color)
{
    m_color = color;
    showVerdicts();
}

void ContrastView::setBackground(const WideColor &background)
{
    m_background = background;
    m_field->setColor(background);
    // A picker at work keeps its own, finer color.
    if (wellColor(wideColorFrom(m_well->color())) != wellColor(background))
        m_well->setColor(wellColor(background));
    showVerdicts();
}

void ContrastView::showVerdicts()
{
    QString ratio = ratioText(contrastOf(m_color, m_background).ratio);
    m_ratio->setText(ratio.replace(u'.', QLocale().decimalPoint()) + u" : 1"_s);
    m_table = contrastTable(m_color, m_background);
    for (const ContrastRow &verdict : m_table) {
        const UseRow &row = m_rows[static_cast<std::size_t>(verdict.use)];
        row.aa->setPasses(verdict.aa);
        if (row.aaa != nullptr)
            row.aaa->setPasses(verdict.aaa);
        row.nearest->setEnabled(verdict.canPass);
        const QString level = verdict.aa ? u"AAA"_s : u"AA"_s;
        row.nearest->setToolTip(verdict.missed == 0.0 ? qtTrId("COLOR_ALL_PASS")
                                : verdict.canPass     ? qtTrId("COLOR_NEAREST_TIP").replace("[LEVEL]"_L1, level)
                                                      : qtTrId("COLOR_NONE_PASSES").replace("[LEVEL]"_L1, level));
    }
    // A translucent background is seen on white.
    QPalette colors = m_sample->palette();
    const QColor behind = platformColor(wellColor(m_background));
    const auto opaque = [](const QColor &color, const QColor &ground) {
        const float part = color.alphaF();
        return QColor::fromRgbF(color.redF() * part + ground.redF() * (1 - part),
                                color.greenF() * part + ground.greenF() * (1 - part),
                                color.blueF() * part + ground.blueF() * (1 - part));
    };
    const QColor ground = opaque(behind, Qt::white);
    colors.setColor(QPalette::Window, ground);
    colors.setColor(QPalette::WindowText, opaque(platformColor(wellColor(m_color)), ground));
    m_sample->setPalette(colors);
}

} // namespace lumora
