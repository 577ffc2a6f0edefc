// SPDX-License-Identifier: MIT
#include "ValidatePopupContentView.h"

#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "ui_ValidatePopupContentView.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"
#include "widgets/style/SlimScrollBars.h"
#include "words/LongWords.h"

#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The space above a line for the accents of capitals: the font counts it as leading, and a label has no leading above
/// its text.
constexpr int accentRoom = 3;

} // namespace

ValidatePopupContentView::ValidatePopupContentView(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ValidatePopupContentView>())
{
    m_ui->setupUi(this);
    styleLabel(m_ui->titleLabel, latoBold(15), palette::chromeText);
    styleLabel(m_ui->messageLabel, latoRegular(13), palette::chromeText);
    for (QLabel *label : {m_ui->titleLabel, m_ui->messageLabel})
        label->setContentsMargins(0, accentRoom, 0, 0);
    m_ui->scrollArea->viewport()->setAutoFillBackground(false);
    auto *style = new SlimScrollBars(QString());
    style->setParent(this);
    m_ui->scrollArea->verticalScrollBar()->setStyle(style);
    m_ui->scrollContents->setAutoFillBackground(false);
    styleButton(m_ui->closeButton, qtTrId("CLOSE"), u"button_icon_close"_s, palette::errorLight, palette::errorDark);
    connect(m_ui->closeButton, &IconButton::clicked, this, &ValidatePopupContentView::closeButtonPressed);
}

ValidatePopupContentView::~ValidatePopupContentView() = default;

QLabel *ValidatePopupContentView::titleLabel() const
{
    return m_ui->titleLabel;
}

QLabel *ValidatePopupContentView::messageLabel() const
{
    return m_ui->messageLabel;
}

QScrollArea *ValidatePopupContentView::scrollArea() const
{
    return m_ui->scrollArea;
}

IconButton *ValidatePopupContentView::closeButton() const
{
    return m_ui->closeButton;
}

void ValidatePopupContentView::setTitle(const QString &title, const QString &andMessage)
{
    m_ui->titleLabel->setText(title);
    m_ui->messageLabel->setText(breakingLongWords(andMessage));
    m_ui->messageLabel->setAccessibleName(andMessage);
    m_ui->scrollArea->setAccessibleName(title);
    setAccessibleName(title);
    setAccessibleDescription(andMessage);
}

void ValidatePopupContentView::setLightColor(const QColor &lightColor, const QColor &andDarkColor)
{
    m_ui->closeButton->setNormalColor(lightColor);
    m_ui->closeButton->setHoverColor(andDarkColor);
    m_ui->closeButton->setActiveColor(andDarkColor);
}

void ValidatePopupContentView::fitToText()
{
    const QMargins margins = m_ui->layout->contentsMargins();
    const int titleWidth = width() - margins.left() - margins.right();
    // Space for the scroll bar is always reserved, so that every text wraps at the same width. The width is known only
    // after the style is set.
    m_ui->scrollArea->verticalScrollBar()->ensurePolished();
    const int messageWidth = titleWidth - m_ui->scrollArea->verticalScrollBar()->sizeHint().width();
    m_ui->messageLabel->setFixedWidth(messageWidth);
    const int message = m_ui->messageLabel->heightForWidth(messageWidth);
    const int around = margins.top() + m_ui->titleLabel->heightForWidth(titleWidth) + 2 * m_ui->layout->spacing() +
                       m_ui->buttonLayout->contentsMargins().top() + m_ui->closeButton->minimumHeight() +
                       margins.bottom();
    resize(width(), std::min(around + message, largestHeight));
    m_ui->scrollArea->verticalScrollBar()->setValue(0);
}

} // namespace lumora
