// SPDX-License-Identifier: MIT
#include "FindingsView.h"

#include "FindingHeader.h"
#include "FindingRow.h"
#include "FindingWords.h"
#include "tool/style/LabelStyle.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/SegmentedControl.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int textSize = 13;
constexpr int fieldHeight = 32;
constexpr int headingSize = 18;

constexpr std::array<std::optional<Severity>, 4> choices{std::nullopt, Severity::Error, Severity::Warning,
                                                         Severity::Note};

IconButton *plainButton(const QString &text)
{
    auto *button = new IconButton;
    button->setText(text);
    button->setNormalColor(palette::chromeText);
    button->setHoverColor(palette::chromeTextDark);
    button->setActiveColor(palette::chromeTextDark);
    button->setFixedHeight(fieldHeight);
    return button;
}

} // namespace

FindingsView::FindingsView(QWidget *parent)
    : QWidget(parent),
      m_severities(new SegmentedControl({qtTrId("FINDINGS_SHOW_ALL"), qtTrId("FINDINGS_SHOW_ERRORS"),
                                         qtTrId("FINDINGS_SHOW_WARNINGS"), qtTrId("FINDINGS_SHOW_NOTES")})),
      m_search(new QLineEdit), m_save(plainButton(qtTrId("FINDINGS_SAVE"))), m_restore(plainButton({})),
      m_empty(new QLabel), m_column(new QVBoxLayout(this))
{
    auto *heading = new QLabel(qtTrId("FINDINGS_TITLE"));
    styleLabel(heading, latoBold(headingSize), palette::chromeText);
    styleLabel(m_empty, latoRegular(textSize), palette::chromeText);
    m_empty->setWordWrap(true);
    m_save->setToolTip(qtTrId("FINDINGS_SAVE_TIP"));
    m_severities->setAccessibleName(qtTrId("ACCESSIBLE_FINDINGS_SEVERITY"));
    setUpSearch();

    auto *head = new QHBoxLayout;
    head->setSpacing(8);
    head->addWidget(heading);
    head->addStretch(1);
    head->addWidget(m_save);
    auto *tools = new QHBoxLayout;
    tools->setSpacing(8);
    tools->addWidget(m_severities);
    tools->addWidget(m_search, 1);
    auto *foot = new QHBoxLayout;
    foot->addWidget(m_restore);
    foot->addStretch(1);
    m_column->setContentsMargins({});
    m_column->setSpacing(4);
    m_column->addLayout(head);
    m_column->addLayout(tools);
    m_column->addSpacing(4);
    m_column->addWidget(m_empty);
    m_column->addLayout(foot);
    m_column->addStretch(1);

    connect(m_severities, &SegmentedControl::chosen, this, &FindingsView::filter);
    connect(m_search, &QLineEdit::textChanged, this, &FindingsView::filter);
    connect(m_save, &IconButton::clicked, this, &FindingsView::saveWanted);
    connect(m_restore, &IconButton::clicked, this, &FindingsView::ignoredRestored);
    show({}, {});
}

void FindingsView::setUpSearch()
{
    m_search->setPlaceholderText(qtTrId("FINDINGS_SEARCH"));
    m_search->setAccessibleName(qtTrId("FINDINGS_SEARCH"));
    m_search->setClearButtonEnabled(true);
    m_search->setFixedHeight(fieldHeight);
    m_search->setMinimumWidth(90);
    m_search->setFont(latoRegular(textSize));
    m_search->setStyleSheet(uR"(
        QLineEdit { background: %1; color: %2; border: 1px solid %3; border-radius: 6px; padding: 0 7px; }
        QLineEdit:focus { border: 2px solid %4; padding: 0 6px; }
    )"_s.arg(palette::textFieldBackground.name(), palette::chromeText.name(), palette::panelOutline.name(),
             palette::validatorBorder.name()));
}

void FindingsView::show(const QList<Finding> &findings, const QStringList &ignored)
{
    for (FindingRow *row : m_rows) {
        m_column->removeWidget(row);
        row->hide();
        row->deleteLater();
    }
    m_rows.clear();
    qsizetype hidden = 0;
    for (qsizetype from = 0; from < findings.size();) {
        const Rule &rule = *findings[from].rule;
        QList<Evidence> places;
        qsizetype next = from;
        while (next < findings.size() && findings[next].rule == &rule)
            places += findings[next++].evidence;
        if (ignored.contains(QLatin1StringView(rule.id))) {
            ++hidden;
        } else {
            auto *row = new FindingRow(rule, places);
            row->setIconNote(m_iconNote);
            const std::size_t index = m_rows.size();
            connect(row, &FindingRow::ignored, this, &FindingsView::ruleIgnored);
            connect(row, &FindingRow::iconsWanted, this, &FindingsView::iconsWanted);
            connect(row->header(), &FindingHeader::moved, this, [this, index](int key) { move(index, key); });
            m_rows.push_back(row);
            // Above the foot and the stretch.
            m_column->insertWidget(m_column->count() - 2, row);
        }
        from = next;
    }
    // New rows would be last of all.
    QWidget *before = m_search;
    for (const FindingRow *row : m_rows) {
        setTabOrder(before, row->header());
        before = row->header();
    }
    setTabOrder(before, m_restore);
    m_restore->setText(qtTrId("FINDINGS_RESTORE").replace("[COUNT]"_L1, QLocale().toString(hidden)));
    m_restore->setVisible(hidden > 0);
    filter();
}

void FindingsView::filter()
{
    const auto wanted = choices.at(static_cast<std::size_t>(m_severities->currentIndex()));
    std::optional<std::size_t> first;
    for (std::size_t index = 0; index < m_rows.size(); ++index) {
        FindingRow *row = m_rows[index];
        const bool isShown = (!wanted || row->rule().severity == *wanted) && row->matches(m_search->text());
        row->setVisible(isShown);
        if (isShown && !first)
            first = index;
    }
    m_empty->setText(m_rows.empty() ? qtTrId("FINDINGS_NONE_LONG") : qtTrId("FINDINGS_NONE_FIT"));
    m_empty->setVisible(!first);
    if (first)
        setCurrent(*first);
}

void FindingsView::setCurrent(std::size_t index)
{
    for (std::size_t each = 0; each < m_rows.size(); ++each)
        m_rows[each]->header()->setFocusPolicy(each == index ? Qt::StrongFocus : Qt::ClickFocus);
}

void FindingsView::move(std::size_t from, int key)
{
    std::vector<std::size_t> shown;
    for (std::size_t index = 0; index < m_rows.size(); ++index) {
        if (!m_rows[index]->isHidden())
            shown.push_back(index);
    }
    const auto place = std::find(shown.begin(), shown.end(), from);
    if (place == shown.end())
        return;
    std::size_t to = from;
    if (key == Qt::Key_Home)
        to = shown.front();
    else if (key == Qt::Key_End)
        to = shown.back();
    else if (key == Qt::Key_Up && place != shown.begin())
        to = *std::prev(place);
    else if (key == Qt::Key_Down && std::next(place) != shown.end())
        to = *std::next(place);
    setCurrent(to);
    m_rows[to]->header()->setFocus(Qt::TabFocusReason);
}

} // namespace lumora
