// SPDX-License-Identifier: MIT
#include "JobResultView.h"

#include "TimedCaption.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/ElidedLabel.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/Panel.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/style/AccessibleRole.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace lumora
{

namespace
{

constexpr int margin = 16;
constexpr int edgeMargin = 6;
constexpr int gap = 8;
constexpr int buttonHeight = 36;
constexpr int buttonWidth = 140;   ///< at least
constexpr int visibleFailures = 3; ///< lines; the others are scrolled to
constexpr int markWidth = 4;

} // namespace

JobResultView::JobResultView(QWidget *parent)
    : QWidget(parent), m_summary(new ElidedLabel(this)), m_showButton(new HoverButton(this)),
      m_copyButton(new HoverButton(this)), m_failureArea(new QScrollArea(this)), m_failures(new QLabel),
      m_notes(new QLabel)
{
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(qtTrId("RESULT_TITLE"));
    styleLabel(m_summary, latoBold(13), palette::chromeText);
    m_showButton->setText(qtTrId("RESULT_SHOW"));
    m_copyCaption = new TimedCaption([this](const QString &caption) { m_copyButton->setText(caption); },
                                     qtTrId("RESULT_COPY_PATH"), this);
    for (HoverButton *button : {m_showButton, m_copyButton})
        button->setFixedSize(std::max(buttonWidth, button->sizeHint().width()), buttonHeight);
    setUpFailures();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    auto *line = new QHBoxLayout;
    line->setSpacing(gap);
    line->addWidget(m_summary, 1);
    line->addWidget(m_showButton);
    line->addWidget(m_copyButton);
    auto *lines = new QVBoxLayout(this);
    lines->setContentsMargins(margin, edgeMargin, edgeMargin, edgeMargin);
    lines->setSpacing(gap / 2);
    lines->addLayout(line);
    lines->addWidget(m_failureArea);

    connect(m_showButton, &HoverButton::clicked, this, [this] { emit folderWanted(m_result.folder); });
    connect(m_copyButton, &HoverButton::clicked, this, [this] {
        m_copyCaption->showForAWhile(qtTrId("RESULT_COPIED"));
        emit pathWanted(m_result.folder);
    });
    hide();
}

void JobResultView::setUpFailures()
{
    auto *texts = new QWidget;
    auto *column = new QVBoxLayout(texts);
    column->setContentsMargins({});
    column->setSpacing(0);
    styleLabel(m_failures, latoRegular(13), palette::errorDark);
    styleLabel(m_notes, latoRegular(13), palette::chromeText);
    for (QLabel *label : {m_failures, m_notes}) {
        label->setWordWrap(true);
        alignToStart(label, Qt::AlignTop);
        column->addWidget(label);
    }
    column->addStretch(1);
    m_failureArea->setWidget(texts);
    m_failureArea->setWidgetResizable(true);
    m_failureArea->setFrameShape(QFrame::NoFrame);
    m_failureArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_failureArea->viewport()->setAutoFillBackground(false);
    texts->setAutoFillBackground(false);
}

void JobResultView::setColors(const QColor &normal, const QColor &hover)
{
    styleButton(m_showButton, m_showButton->text(), normal, hover);
    styleButton(m_copyButton, m_copyButton->text(), normal, hover);
}

void JobResultView::setResult(const JobResult &result)
{
    m_result = result;
    m_summary->setText(result.summary);
    m_showButton->setVisible(!result.folder.isEmpty());
    m_copyButton->setVisible(!result.folder.isEmpty());
    m_showButton->setToolTip(result.folder);
    m_failures->setText(result.failures.join(u'\n'));
    m_failures->setVisible(!result.failures.isEmpty());
    m_notes->setText(result.notes.join(u'\n'));
    m_notes->setVisible(!result.notes.isEmpty());
    m_failureArea->setAccessibleName(qtTrId(result.failures.isEmpty() ? "RESULT_NOTES" : "RESULT_FAILURES"));
    const qsizetype lines = result.failures.size() + result.notes.size();
    m_failureArea->setVisible(lines > 0);
    // The area takes the focus only if it can be scrolled.
    m_failureArea->setFocusPolicy(lines > visibleFailures ? Qt::StrongFocus : Qt::NoFocus);
    setAccessibleDescription(text());
    fitFailures();
    setVisible(!result.isEmpty());
    update();
    if (!result.isEmpty())
        announce();
}

void JobResultView::fitFailures()
{
    const auto lines =
        std::min<int>(static_cast<int>(m_result.failures.size() + m_result.notes.size()), visibleFailures);
    m_failureArea->setFixedHeight(m_failures->fontMetrics().lineSpacing() * std::max(lines, 1) + 2);
}

QString JobResultView::text() const
{
    return (QStringList{m_result.summary} + m_result.failures + m_result.notes).join(u'\n');
}

void JobResultView::announce()
{
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void JobResultView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::panel);
    painter.drawRoundedRect(rect(), Panel::cornerRadius, Panel::cornerRadius);
    // The color only repeats what the text says.
    painter.setBrush(m_result.failures.isEmpty() ? palette::successDark : palette::errorDark);
    painter.drawRoundedRect(QRectF(0, edgeMargin, markWidth, height() - 2 * edgeMargin), markWidth / 2.0,
                            markWidth / 2.0);
}

} // namespace lumora
