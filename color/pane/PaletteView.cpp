// SPDX-License-Identifier: MIT
#include "PaletteView.h"

#include "color/WellColor.h"
#include "color/picker/SwatchList.h"
#include "tool/style/DropDownStyle.h"
#include "tool/style/LabelStyle.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace lumora
{

namespace
{

constexpr int titleSize = 18;
constexpr int hintSize = 13;
constexpr int buttonHeight = 36;
constexpr int swatchesHeight = 44;

/// In the order of PaletteFormat.
QStringList formatNames()
{
    return {qtTrId("COLOR_FORMAT_SETS"), qtTrId("COLOR_FORMAT_GPL"), qtTrId("COLOR_FORMAT_JSON"),
            qtTrId("COLOR_FORMAT_CSS")};
}

} // namespace

PaletteView::PaletteView(QWidget *parent)
    : QWidget(parent), m_swatches(new SwatchList(this)), m_hint(new QLabel(qtTrId("COLOR_PALETTE_EMPTY"), this)),
      m_add(makeButton(qtTrId("COLOR_PALETTE_ADD"))), m_remove(makeButton(qtTrId("COLOR_PALETTE_REMOVE"))),
      m_open(makeButton(qtTrId("COLOR_PALETTE_OPEN"))), m_catalogue(makeButton(qtTrId("COLOR_CATALOGUE_OPEN"))),
      m_stop(makeButton(qtTrId("STOP"))), m_save(makeButton(qtTrId("COLOR_PALETTE_SAVE"))),
      m_formats(new QComboBox(this))
{
    auto *title = new QLabel(qtTrId("COLOR_PALETTE"), this);
    styleLabel(title, latoBold(titleSize), palette::color);
    m_swatches->setAccessibleName(qtTrId("COLOR_PALETTE_LIST"));
    m_swatches->setFixedHeight(swatchesHeight);
    m_swatches->installEventFilter(this);
    m_formats->addItems(formatNames());
    m_formats->setAccessibleName(qtTrId("COLOR_FORMAT"));
    m_formats->setToolTip(m_formats->accessibleName());
    m_formats->setFixedHeight(buttonHeight);
    frameDropDown(m_formats);
    styleDropDown(m_formats);
    connect(m_swatches, &SwatchList::rowChosen, this, &PaletteView::chosen);
    connect(m_swatches->selectionModel(), &QItemSelectionModel::selectionChanged, this, &PaletteView::enableButtons);
    connect(m_add, &IconButton::clicked, this, &PaletteView::addWanted);
    connect(m_remove, &IconButton::clicked, this, &PaletteView::removeMarked);
    connect(m_open, &IconButton::clicked, this, &PaletteView::openWanted);
    connect(m_catalogue, &IconButton::clicked, this, &PaletteView::catalogueWanted);
    connect(m_stop, &IconButton::clicked, this, &PaletteView::stopWanted);
    connect(m_save, &IconButton::clicked, this, &PaletteView::saveWanted);
    m_catalogue->setToolTip(qtTrId("COLOR_CATALOGUE_TIP"));

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(title);
    buttons->addStretch(1);
    for (QWidget *control :
         std::initializer_list<QWidget *>{m_add, m_remove, m_open, m_catalogue, m_stop, m_formats, m_save})
        buttons->addWidget(control);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addLayout(buttons);
    column->addWidget(m_hint);
    column->addWidget(m_swatches);
    styleLabel(m_hint, latoRegular(hintSize), palette::chromeText);
    m_hint->setFixedHeight(swatchesHeight);
    m_stop->hide();
    alignToStart(m_hint, Qt::AlignTop);
    enableButtons();
}

IconButton *PaletteView::makeButton(const QString &text)
{
    auto *button = new IconButton(this);
    button->setText(text);
    button->setNormalColor(palette::color);
    button->setHoverColor(palette::colorBorder);
    button->setActiveColor(palette::colorBorder);
    button->setFixedHeight(buttonHeight);
    return button;
}

void PaletteView::setReading(bool isReading)
{
    m_open->setHidden(isReading);
    m_catalogue->setHidden(isReading);
    m_stop->setVisible(isReading);
}

PaletteFormat PaletteView::format() const
{
    return static_cast<PaletteFormat>(m_formats->currentIndex());
}

void PaletteView::setPalette(const Palette &palette)
{
    std::vector<NamedColor> colors;
    for (const PaletteColor &entry : palette) {
        const bool isNamedByCode = entry.name == hex8Of(entry.color) && entry.color.alpha == 1.0;
        colors.push_back({isNamedByCode ? QString() : entry.name, wellColor(entry.color)});
    }
    m_swatches->setColors(std::move(colors));
    enableButtons();
}

void PaletteView::enableButtons()
{
    const bool isEmpty = m_swatches->swatches().rowCount() == 0;
    m_hint->setVisible(isEmpty);
    m_swatches->setVisible(!isEmpty);
    m_save->setEnabled(!isEmpty);
    m_remove->setEnabled(!m_swatches->selectionModel()->selectedIndexes().isEmpty());
}

void PaletteView::removeMarked()
{
    const QModelIndexList marked = m_swatches->selectionModel()->selectedIndexes();
    if (!marked.isEmpty())
        emit removalWanted(marked.constFirst().row());
}

bool PaletteView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        removeMarked();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace lumora
