// SPDX-License-Identifier: MIT
#include "PopupContentView.h"

#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "ui_PopupContentView.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

using namespace Qt::StringLiterals;

namespace lumora
{

PopupContentView::PopupContentView(UrlOpener &urlOpener, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::PopupContentView>()), m_urlOpener(urlOpener)
{
    m_ui->setupUi(this);
    awakeFromNib();
}

PopupContentView::~PopupContentView() = default;

void PopupContentView::awakeFromNib()
{
    styleLabel(m_ui->popupTitleField, latoBold(15), palette::successLight);
    styleLabel(m_ui->popupTextField, latoRegular(13), palette::chromeText);
    m_ui->popupTitleSeperator->setBackgroundColor(palette::successLight);
    m_ui->popupTextSeperator->setBackgroundColor(palette::successLight);
    styleButton(m_ui->bugreportButton, qtTrId("HELP_BUG_REPORT"), u"button_icon_bugreport"_s, palette::errorLight,
                palette::errorDark);
    styleButton(m_ui->featurerequestButton, qtTrId("HELP_FEATURE_REQUEST"), u"button_icon_featurerequest"_s,
                palette::successLight, palette::successDark);
    styleButton(m_ui->feedbackButton, qtTrId("HELP_FEEDBACK"), u"button_icon_feedback"_s, palette::infoLight,
                palette::infoDark);
    connect(m_ui->bugreportButton, &IconButton::clicked, this, &PopupContentView::bugreportClicked);
    connect(m_ui->featurerequestButton, &IconButton::clicked, this, &PopupContentView::featurerequestClicked);
    connect(m_ui->feedbackButton, &IconButton::clicked, this, &PopupContentView::feedbackClicked);
}

void PopupContentView::setTitle(const QString &title)
{
    m_ui->popupTitleField->setText(title);
    setAccessibleName(title);
}

void PopupContentView::setText(const QString &text)
{
    m_ui->popupTextField->setText(text);
}

void PopupContentView::setIcon(const NamedImage &icon)
{
    m_ui->popupIconView->setImage(icon);
}

void PopupContentView::setColor(const QColor &color)
{
    styleLabel(m_ui->popupTitleField, m_ui->popupTitleField->font(), color);
    m_ui->popupTitleSeperator->setBackgroundColor(color);
    m_ui->popupTextSeperator->setBackgroundColor(color);
}

void PopupContentView::bugreportClicked()
{
    openAddress(qtTrId("ABOUT_BUG_REPORT_WEB"));
}

void PopupContentView::featurerequestClicked()
{
    openAddress(qtTrId("ABOUT_FEATURE_REQUEST_WEB"));
}

void PopupContentView::feedbackClicked()
{
    openAddress(qtTrId("ABOUT_QUESTIONS_WEB"));
}

void PopupContentView::openAddress(const QString &address)
{
    m_urlOpener.open(QUrl(address));
}

} // namespace lumora
