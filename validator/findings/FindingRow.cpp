// SPDX-License-Identifier: MIT
#include "FindingRow.h"

#include "FindingHeader.h"
#include "FindingWords.h"
#include "tool/style/LabelStyle.h"
#include "validator/rules/Wording.h"
#include "validator/words/LongWords.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int textSize = 13;
/// The left edge of a line's title.
constexpr int indent = 48;
constexpr int sideMargin = 12;
constexpr int buttonHeight = 28;

IconButton *smallButton(const QString &text)
{
    auto *button = new IconButton;
    button->setText(text);
    button->setNormalColor(palette::chromeText);
    button->setHoverColor(palette::chromeTextDark);
    button->setActiveColor(palette::chromeTextDark);
    button->setFixedHeight(buttonHeight);
    return button;
}

} // namespace

FindingRow::FindingRow(const Rule &rule, QList<Evidence> places, QWidget *parent)
    : QWidget(parent), m_rule(rule), m_places(std::move(places)), m_header(new FindingHeader(rule, m_places.size()))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_header);
    connect(m_header, &FindingHeader::clicked, this, [this] {
        m_isRevealed = m_header->isOpen();
        setOpen(!m_header->isOpen());
    });
}

void FindingRow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_isRevealed)
        return;
    m_isRevealed = true;
    // The list and its scroll bar have their new size only after this event.
    QMetaObject::invokeMethod(this, &FindingRow::reveal, Qt::QueuedConnection);
}

void FindingRow::reveal()
{
    for (QWidget *parent = parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        const auto *area = qobject_cast<QScrollArea *>(parent);
        if (area == nullptr)
            continue;
        QScrollBar *bar = area->verticalScrollBar();
        const int top = mapTo(area->widget(), QPoint()).y();
        const int most = top + height() - area->viewport()->height();
        if (bar->value() < most)
            bar->setValue(std::min(most, top));
        return;
    }
}

void FindingRow::setOpen(bool isOpen)
{
    if (isOpen == m_header->isOpen())
        return;
    if (isOpen && m_body == nullptr)
        makeBody();
    m_body->setVisible(isOpen);
    m_header->setOpen(isOpen);
    emit opened(isOpen);
}

bool FindingRow::matches(const QString &words) const
{
    QStringList texts{worded(m_rule.title), worded(m_rule.rule), worded(m_rule.fix), QString::fromLatin1(m_rule.id),
                      QString::fromLatin1(m_rule.code)};
    for (const Evidence &place : m_places)
        texts << place.path << place.text;
    const QString all = texts.join(u'\n');
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    return std::all_of(wanted.begin(), wanted.end(),
                       [&all](const QString &word) { return all.contains(word, Qt::CaseInsensitive); });
}

QString FindingRow::foundText() const
{
    QStringList lines;
    for (const Evidence &place : m_places.first(std::min(mostPlaces, m_places.size())))
        lines += evidenceText(place);
    if (m_places.size() > mostPlaces)
        lines += qtTrId("FINDINGS_MORE_PLACES").replace("[COUNT]"_L1, QLocale().toString(m_places.size() - mostPlaces));
    return lines.join(u'\n');
}

void FindingRow::addPart(QVBoxLayout *column, const QString &heading, const QString &text)
{
    auto *title = new QLabel(heading);
    styleLabel(title, latoBold(textSize), palette::chromeText);
    auto *words = new QLabel;
    styleLabel(words, latoRegular(textSize), palette::chromeText);
    words->setWordWrap(true);
    words->setText(breakingLongWords(text));
    words->setAccessibleName(text);
    column->addWidget(title);
    column->addWidget(words);
    column->addSpacing(6);
}

void FindingRow::makeBody()
{
    m_body = new QWidget;
    auto *column = new QVBoxLayout(m_body);
    // Margins have sides, not beginnings.
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    column->setContentsMargins(isMirrored ? sideMargin : indent, 6, isMirrored ? indent : sideMargin, 12);
    column->setSpacing(2);
    addPart(column, qtTrId("FINDINGS_FOUND"), foundText());
    addPart(column, qtTrId("FINDINGS_WHY"), worded(m_rule.rule));
    addPart(column, qtTrId("FINDINGS_MEND"), worded(m_rule.fix));
    const bool hasIcons = QLatin1StringView(m_rule.id).startsWith("icon-"_L1);
    if (hasIcons && !m_iconNote.isEmpty())
        addPart(column, qtTrId("FINDINGS_OWN_PICTURE"), m_iconNote);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    if (hasIcons) {
        m_icons = smallButton(qtTrId("FINDINGS_MAKE_ICONS"));
        m_icons->setToolTip(qtTrId("FINDINGS_MAKE_ICONS_TIP"));
        connect(m_icons, &IconButton::clicked, this, &FindingRow::iconsWanted);
        buttons->addWidget(m_icons);
    }
    m_ignore = smallButton(qtTrId("FINDINGS_IGNORE"));
    m_ignore->setToolTip(qtTrId("FINDINGS_IGNORE_TIP"));
    connect(m_ignore, &IconButton::clicked, this, [this] { emit ignored(QString::fromLatin1(m_rule.id)); });
    buttons->addWidget(m_ignore);
    buttons->addStretch(1);
    column->addLayout(buttons);
    layout()->addWidget(m_body);
    if (m_icons != nullptr)
        setTabOrder(m_header, m_icons);
    setTabOrder(m_icons != nullptr ? static_cast<QWidget *>(m_icons) : m_header, m_ignore);
}

} // namespace lumora
