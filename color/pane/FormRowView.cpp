// SPDX-License-Identifier: MIT
#include "FormRowView.h"

#include "tool/TimedCaption.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/ElidedLabel.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/ToolTip.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QGridLayout>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int titleSize = 13;
constexpr int textSize = 13;
constexpr int markSize = 12;
constexpr int buttonWidth = 104;
constexpr int buttonHeight = 36;

} // namespace

FormRowView::FormRowView(const QKeySequence &keys, QWidget *parent)
    : QWidget(parent), m_keys(keys), m_title(new QLabel(this)), m_mark(new QLabel(qtTrId("COLOR_CLIPPED"), this)),
      m_text(new ElidedLabel(this)), m_srgbText(new ElidedLabel(this)), m_button(new IconButton(this))
{
    styleLabel(m_title, latoRegular(titleSize), palette::chromeText);
    styleLabel(m_mark, latoBold(markSize), palette::errorDark);
    styleLabel(m_text, latoBold(textSize), palette::chromeText);
    styleLabel(m_srgbText, latoRegular(textSize), palette::chromeText);
    m_mark->setToolTip(qtTrId("COLOR_CLIPPED_TIP"));
    for (ElidedLabel *label : {m_text, m_srgbText}) {
        label->setCursor(Qt::PointingHandCursor);
        label->installEventFilter(this);
        // Code is read from left to right in every language.
        label->setLayoutDirection(Qt::LeftToRight);
    }
    styleButton(m_button, {}, u"button_icon_copy"_s, palette::color, palette::colorBorder);
    m_button->setFixedSize(buttonWidth, buttonHeight);
    m_caption = new TimedCaption([this](const QString &caption) { m_button->setText(caption); }, qtTrId("COPY"), this);
    connect(m_button, &IconButton::clicked, this, &FormRowView::copy);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    grid->addWidget(m_title, 0, 0);
    grid->addWidget(m_mark, 0, 1, Qt::AlignLeading | Qt::AlignVCenter);
    grid->addWidget(m_text, 1, 0, 1, 2);
    grid->addWidget(m_srgbText, 2, 0, 1, 2);
    grid->addWidget(m_button, 0, 2, 3, 1, Qt::AlignVCenter);
}

void FormRowView::setRow(const FormRow &row)
{
    m_row = row;
    const QString title = QString(row.form->title);
    m_title->setText(title);
    m_text->setText(row.text.simplified());
    m_srgbText->setText(u"sRGB: "_s + row.srgbText.simplified());
    m_srgbText->setVisible(!row.srgbText.isEmpty());
    m_mark->setVisible(row.isClipped);
    const QString name = qtTrId("COLOR_COPY_FORM").replace("[FORM]"_L1, title);
    m_button->setAccessibleName(name);
    m_button->setAccessibleDescription(row.text);
    m_button->setToolTip(tipWithKeys(name, m_keys));
}

void FormRowView::copy()
{
    copyText(m_row.text);
}

void FormRowView::copyText(const QString &text)
{
    emit copied(text);
    m_caption->showForAWhile(qtTrId("COPIED"));
}

bool FormRowView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
        copyText(watched == m_srgbText ? m_row.srgbText : m_row.text);
    return QWidget::eventFilter(watched, event);
}

} // namespace lumora
