// SPDX-License-Identifier: MIT
#include "TodayIconPane.h"

#include "EntryField.h"
#include "IconView.h"
#include "PreviewTile.h"
#include "SnippetBox.h"
#include "SourceWell.h"
#include "tool/DropHighlight.h"
#include "tool/JobResultView.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/DropDownStyle.h"
#include "tool/style/ElidedLabel.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/Panel.h"
#include "tool/style/ToolTip.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/progress/LBProgressBar.h"
#include "widgets/style/AccessibleRole.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QStackedWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int margin = 16;
constexpr int gap = 8;
constexpr int padding = 24;
constexpr int narrowPadding = 16;
constexpr int leftWidth = 310;
constexpr int titleSize = 25;
constexpr int titleMargin = 8;
constexpr int titleHeight = 28;
constexpr int textSize = 13;
constexpr int smallSize = 11;
constexpr int buttonHeight = 36;
constexpr int dropDownHeight = 32;
constexpr int dropDownWidth = 112;
constexpr int copyWidth = 108;
constexpr int boxHeight = 28;
constexpr int boxColumns = 4;
constexpr int wellColumns = 3;
constexpr int statusHeight = 18;
constexpr int progressHeight = 20;
constexpr QSize leastIcon(64, 64);
/// Of the icon's view, which gets what is left of the height until it is a square.
constexpr int iconStretch = 1000;

QString nameOf(TodaySet set)
{
    switch (set) {
    case TodaySet::MacOs:
        return qtTrId("ICONS_MAC");
    case TodaySet::WatchOs:
        return qtTrId("ICONS_WATCH");
    case TodaySet::Adaptive:
        return qtTrId("ICONS_ANDROID");
    case TodaySet::Web:
        return qtTrId("ICONS_WEB");
    case TodaySet::Windows:
        return qtTrId("ICONS_WINDOWS");
    case TodaySet::Linux:
        return qtTrId("ICONS_LINUX");
    default:
        return qtTrId("SNIPPETS_PLATFORM_IOS");
    }
}

QLabel *makeTitle(const QString &text)
{
    auto *label = new QLabel(text);
    styleLabel(label, latoBold(titleSize), palette::icons);
    return label;
}

HoverButton *makeButton(const QString &text)
{
    auto *button = new HoverButton;
    styleButton(button, text, palette::icons, palette::iconsBorder);
    button->setFixedHeight(buttonHeight);
    return button;
}

/// A field with its name above it.
QWidget *underName(const QString &name, const QString &accessibleName, ColorEntryField *field)
{
    auto *whole = new QWidget;
    auto *column = new QVBoxLayout(whole);
    column->setContentsMargins({});
    column->setSpacing(1);
    auto *label = new ElidedLabel;
    styleLabel(label, latoBold(smallSize), palette::chromeText);
    label->setText(name);
    label->setBuddy(field);
    field->setAccessibleName(accessibleName);
    column->addWidget(label);
    column->addWidget(field);
    return whole;
}

} // namespace

TodayIconPane::TodayIconPane(QWidget *parent)
    : QWidget(parent), m_dropView(new DropView), m_iconView(new IconView), m_title(new ElidedLabel),
      m_status(new ElidedLabel), m_browse(makeButton(qtTrId("BROWSE"))), m_stop(makeButton(qtTrId("STOP"))),
      m_background(new ColorEntryField), m_flatten(new ColorEntryField), m_name(new EntryField),
      m_all(makeButton(qtTrId("ICONS_ALL"))), m_generate(makeButton(qtTrId("GENERATE"))), m_progress(new LBProgressBar),
      m_progressLabel(new QLabel), m_cancel(makeButton(qtTrId("CANCEL"))), m_actions(new QStackedWidget),
      m_snippetSets(new QComboBox), m_snippet(new SnippetBox), m_copy(new IconButton), m_result(new JobResultView)
{
    auto *right = new QVBoxLayout;
    right->setSpacing(margin);
    right->addWidget(makeSets());
    right->addWidget(makeSnippets(), 1);
    right->addWidget(m_result);
    auto *upper = new QHBoxLayout;
    upper->setSpacing(margin);
    upper->addWidget(makeSources());
    upper->addLayout(right, 1);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(margin);
    whole->addLayout(upper, 1);
    whole->addWidget(makePreviews());
}

QWidget *TodayIconPane::makeSources()
{
    new DropHighlight(m_dropView, palette::icons);
    m_dropView->setAccessibleName(qtTrId("ACCESSIBLE_ICONS_DROP"));
    m_dropView->setToolTip(tipWithKeys(qtTrId("TIP_DROP"), QKeySequence::Paste));
    m_dropView->setFixedWidth(leftWidth);
    m_iconView->setAccessibleName(qtTrId("ACCESSIBLE_ICONS_SOURCE"));
    m_iconView->setMinimumSize(leastIcon);
    // Its title stays below it in a high window.
    m_iconView->setMaximumHeight(leftWidth - 2 * narrowPadding);
    m_iconView->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    styleLabel(m_title, latoBold(15), palette::chromeText);
    for (ElidedLabel *label : {m_title, m_status})
        label->setAlignment(Qt::AlignCenter);
    m_status->setFixedHeight(statusHeight);
    m_flatten->setPlaceholderText(qtTrId("ICONS_COLOR_NONE"));
    m_browse->setToolTip(tipWithKeys(qtTrId("TIP_BROWSE"), QKeySequence::Open));

    // In this order, which is the keyboard's.
    auto *lines = new QVBoxLayout(m_dropView);
    lines->setContentsMargins(narrowPadding, narrowPadding, narrowPadding, narrowPadding);
    lines->setSpacing(4);
    lines->addWidget(m_iconView, iconStretch);
    lines->addWidget(m_title);
    lines->addWidget(m_status);
    lines->addWidget(m_browse);
    lines->addWidget(m_stop);
    m_stop->hide();
    lines->addSpacing(gap);
    lines->addStretch(1);
    auto *grid = new QGridLayout;
    grid->setSpacing(8);
    for (const FurtherSource source : furtherSources) {
        const auto index = static_cast<int>(source);
        m_wells[static_cast<std::size_t>(index)] = new SourceWell(source, m_dropView);
        grid->addWidget(m_wells[static_cast<std::size_t>(index)], index / wellColumns, index % wellColumns);
    }
    auto *colors = new QVBoxLayout;
    colors->setSpacing(2);
    colors->addWidget(underName(qtTrId("ICONS_OR_COLOR"), qtTrId("ICONS_BACKGROUND_COLOR"), m_background));
    colors->addWidget(underName(qtTrId("ICONS_FLATTEN"), qtTrId("ICONS_FLATTEN_COLOR"), m_flatten));
    m_flatten->setToolTip(qtTrId("ICONS_FLATTEN_TIP"));
    grid->addLayout(colors, 1, 2);
    for (int column = 0; column < wellColumns; ++column)
        grid->setColumnStretch(column, 1);

    lines->addLayout(grid);
    return m_dropView;
}

QWidget *TodayIconPane::makeSets()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(4);
    for (std::size_t index = 0; index < offeredSets.size(); ++index) {
        const TodaySet set = offeredSets[index];
        auto *box = new CheckboxButton;
        box->setText(nameOf(set));
        box->setMinimumHeight(boxHeight);
        connect(box, &CheckboxButton::clicked, this, [this, set] { toggle(set); });
        m_boxes[index] = box;
        grid->addWidget(box, static_cast<int>(index) / boxColumns, static_cast<int>(index) % boxColumns);
    }
    for (int column = 0; column < boxColumns; ++column)
        grid->setColumnStretch(column, 1);

    m_name->setPlaceholderText(qtTrId("ICONS_APP_NAME"));
    m_name->setAccessibleName(qtTrId("ICONS_APP_NAME"));
    m_name->setToolTip(qtTrId("ICONS_APP_NAME_TIP"));
    auto *start = new QWidget;
    auto *buttons = new QHBoxLayout(start);
    buttons->setContentsMargins({});
    buttons->setSpacing(gap);
    buttons->addWidget(m_name, 1);
    buttons->addWidget(m_all);
    buttons->addWidget(m_generate);
    auto *running = new QWidget;
    auto *bar = new QHBoxLayout(running);
    bar->setContentsMargins({});
    bar->addWidget(m_progress, 1);
    bar->addWidget(m_progressLabel);
    bar->addWidget(m_cancel);
    styleLabel(m_progressLabel, latoBold(textSize), palette::chromeText);
    m_progress->setFixedHeight(progressHeight);
    m_progress->setLightColor(palette::icons);
    m_progress->setDarkColor(palette::iconsBorder);
    m_progress->setAccessibleName(qtTrId("ICONS_PROGRESS"));
    m_actions->addWidget(start);
    m_actions->addWidget(running);
    m_actions->setFixedHeight(buttonHeight);
    connect(m_all, &HoverButton::clicked, this, &TodayIconPane::toggleAll);

    auto *panel = new Panel;
    auto *lines = new QVBoxLayout(panel);
    lines->setContentsMargins(padding, titleMargin, padding, narrowPadding);
    lines->setSpacing(gap);
    // In line with the switch between the sides, which is in the corner.
    QLabel *title = makeTitle(qtTrId("ICONS_PLATFORMS_TITLE"));
    title->setFixedHeight(titleHeight);
    lines->addWidget(title);
    lines->addLayout(grid);
    lines->addWidget(m_actions);
    return panel;
}

QWidget *TodayIconPane::makeSnippets()
{
    for (const TodaySet set : offeredSets)
        m_snippetSets->addItem(nameOf(set), static_cast<int>(set));
    // On X11 and Wayland the name of a drop-down list is its choice.
    m_snippetSets->setAccessibleName(qtTrId("ACCESSIBLE_SNIPPET_PLATFORM"));
    m_snippetSets->setAccessibleDescription(qtTrId("ACCESSIBLE_SNIPPET_PLATFORM"));
    m_snippetSets->setFixedSize(dropDownWidth, dropDownHeight);
    frameDropDown(m_snippetSets);
    styleDropDown(m_snippetSets);
    styleButton(m_copy, qtTrId("COPY"), u"button_icon_copy"_s, palette::icons, palette::iconsBorder);
    m_copy->setFixedSize(copyWidth, dropDownHeight);

    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(makeTitle(qtTrId("Code Snippets")));
    row->addStretch(1);
    row->addWidget(m_snippetSets);
    row->addWidget(m_copy);
    auto *panel = new Panel;
    auto *lines = new QVBoxLayout(panel);
    lines->setContentsMargins(padding, gap, padding, narrowPadding);
    lines->setSpacing(8);
    lines->addLayout(row);
    lines->addWidget(m_snippet, 1);
    return panel;
}

QWidget *TodayIconPane::makePreviews()
{
    auto *panel = new Panel;
    setAccessibleRole(panel, QAccessible::Grouping);
    panel->setAccessibleName(qtTrId("ICONS_SEEN"));
    auto *row = new QHBoxLayout(panel);
    row->setContentsMargins(narrowPadding, gap, narrowPadding, gap);
    row->setSpacing(0);
    for (const PreviewPlace place : previewPlaces) {
        m_tiles[static_cast<std::size_t>(place)] = new PreviewTile(place, panel);
        row->addWidget(m_tiles[static_cast<std::size_t>(place)], 1);
    }
    panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return panel;
}

CheckboxButton *TodayIconPane::box(TodaySet set) const
{
    const auto found = std::find(offeredSets.begin(), offeredSets.end(), set);
    return m_boxes.at(static_cast<std::size_t>(found - offeredSets.begin()));
}

QList<TodaySet> TodayIconPane::chosenSets() const
{
    QList<TodaySet> sets;
    for (const TodaySet set : offeredSets) {
        if (box(set)->isActive())
            sets << set;
    }
    return sets;
}

void TodayIconPane::toggle(TodaySet set)
{
    setChosen(set, !box(set)->isActive());
    if (box(set)->isActive())
        m_snippetSets->setCurrentIndex(m_snippetSets->findData(static_cast<int>(set)));
}

void TodayIconPane::setChosen(TodaySet set, bool isChosen)
{
    box(set)->setActive(isChosen);
    emit setToggled(set, isChosen);
}

void TodayIconPane::toggleAll()
{
    const bool isAll = chosenSets().size() == static_cast<qsizetype>(offeredSets.size());
    for (const TodaySet set : offeredSets) {
        if (box(set)->isActive() == isAll)
            setChosen(set, !isAll);
    }
}

void TodayIconPane::setStatus(const QString &text, bool isRefusal)
{
    m_statusText = text;
    m_isRefusal = isRefusal;
    if (m_stop->isHidden())
        showStatus(text, isRefusal);
}

void TodayIconPane::showStatus(const QString &text, bool isRefusal)
{
    styleLabel(m_status, latoBold(textSize), isRefusal ? palette::errorDark : palette::linkText);
    m_status->setText(text);
}

void TodayIconPane::showReading(const QString &path)
{
    showStatus(qtTrId("READING_FILE").replace("[FILE]"_L1, QFileInfo(path).fileName()), false);
    // The focus passes from one to the other.
    m_stop->show();
    m_browse->hide();
}

void TodayIconPane::endReading()
{
    m_browse->show();
    if (m_stop->hasFocus())
        m_browse->setFocus();
    m_stop->hide();
    showStatus(m_statusText, m_isRefusal);
}

void TodayIconPane::showPreviews(const IconPreviews &previews)
{
    for (const IconPreview &preview : previews.places)
        tile(preview.place)->setPreview(preview);
    for (const SourcePreview &preview : previews.sources)
        well(preview.source)->setPreview(preview);
}

void TodayIconPane::showProgress(qsizetype number, qsizetype count)
{
    m_progress->setMaxValue(static_cast<double>(count));
    m_progress->setDoubleValue(static_cast<double>(number));
    m_progressLabel->setText(qtTrId("SCALER_PROGRESS")
                                 .replace("[DONE]"_L1, QString::number(number))
                                 .replace("[COUNT]"_L1, QString::number(count)));
}

void TodayIconPane::setRunning(bool running)
{
    m_actions->setCurrentIndex(running ? 1 : 0);
    if (running) {
        m_progressLabel->clear();
        m_progress->setDoubleValue(0);
        m_progress->startAnimation();
    } else {
        m_progress->stopAnimation();
    }
}

} // namespace lumora
