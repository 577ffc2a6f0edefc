// SPDX-License-Identifier: MIT
#include "PopoverAlertView.h"

#include "PopoverAlert.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/ImageView.h"
#include "widgets/style/Palette.h"

#include <QBoxLayout>
#include <QLabel>

namespace lumora
{

namespace
{

constexpr int margin = 20;
constexpr int gap = 10;
constexpr int iconSide = 48;
constexpr int textWidth = 320;
constexpr int buttonHeight = 36;
constexpr int buttonPadding = 16;

QLabel *wrappedLabel(const QString &text, const QFont &font, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    styleLabel(label, font, palette::chromeText);
    label->setWordWrap(true);
    label->setFixedWidth(textWidth);
    return label;
}

} // namespace

PopoverAlertView::PopoverAlertView(const PopoverAlert &alert)
{
    setAccessibleName(alert.messageText);
    auto *icon = new ImageView(this);
    icon->setImage(alert.icon);
    icon->setFixedSize(iconSide, iconSide);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(gap);
    texts->addWidget(wrappedLabel(alert.messageText, latoBold(15), this));
    texts->addWidget(wrappedLabel(alert.informativeText, latoRegular(13), this));
    texts->addStretch();
    auto *top = new QHBoxLayout;
    top->setSpacing(margin);
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addLayout(texts);

    auto *row = new QHBoxLayout;
    row->setSpacing(gap);
    row->setDirection(QBoxLayout::RightToLeft);
    row->addStretch();
    for (const QString &title : alert.buttonTitles) {
        auto *button = new IconButton(this);
        const bool isDefault = m_buttons.isEmpty();
        styleButton(button, title, QString(), isDefault ? palette::linkText : palette::chromeText,
                    isDefault ? palette::chromeText : palette::chromeTextDark);
        button->setFixedSize(button->sizeHint().width() + 2 * buttonPadding, buttonHeight);
        row->addWidget(button);
        m_buttons << button;
    }
    row->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addLayout(top);
    layout->addLayout(row);
    resize(layout->totalSizeHint());
    if (!m_buttons.isEmpty())
        setFocusProxy(m_buttons.first());
}

} // namespace lumora
