// SPDX-License-Identifier: MIT
#include "AlertContentView.h"

#include "tool/style/LabelStyle.h"
#include "ui_AlertContentView.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/NamedImage.h"
#include "widgets/style/Palette.h"

using namespace Qt::StringLiterals;

namespace lumora
{

AlertContentView::AlertContentView(QWidget *parent) : QWidget(parent), m_ui(std::make_unique<Ui::AlertContentView>())
{
    m_ui->setupUi(this);
    awakeFromNib();
}

AlertContentView::~AlertContentView() = default;

void AlertContentView::awakeFromNib()
{
    styleLabel(m_ui->titleLabel, latoBold(15), palette::chromeText);
    styleLabel(m_ui->messageLabel, latoRegular(13), palette::chromeText);
    setLightColor(palette::errorLight, palette::errorDark);
    m_ui->closeButton->setText(qtTrId("CLOSE"));
    m_ui->closeButton->setIcon(NamedImage(u"button_icon_close"_s));
    connect(m_ui->closeButton, &IconButton::clicked, this, &AlertContentView::closeButtonClicked);
}

QLabel *AlertContentView::titleLabel() const
{
    return m_ui->titleLabel;
}

QLabel *AlertContentView::messageLabel() const
{
    return m_ui->messageLabel;
}

IconButton *AlertContentView::closeButton() const
{
    return m_ui->closeButton;
}

void AlertContentView::setTitle(const QString &title, const QString &andMessage)
{
    m_ui->titleLabel->setText(title);
    m_ui->messageLabel->setText(andMessage);
    setAccessibleName(title);
    setAccessibleDescription(andMessage);
}

void AlertContentView::setLightColor(const QColor &lightColor, const QColor &andDarkColor)
{
    m_ui->closeButton->setNormalColor(lightColor);
    m_ui->closeButton->setHoverColor(andDarkColor);
    m_ui->closeButton->setActiveColor(andDarkColor);
}

void AlertContentView::closeButtonClicked()
{
    if (m_delegate != nullptr)
        m_delegate->popupCloseButtonPressed();
}

} // namespace lumora
