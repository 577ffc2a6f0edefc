// SPDX-License-Identifier: MIT
#include "AboutPopupContentView.h"

#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "ui_AboutPopupContentView.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

using namespace Qt::StringLiterals;

namespace lumora
{

AboutPopupContentView::AboutPopupContentView(UrlOpener &urlOpener, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::AboutPopupContentView>()), m_urlOpener(urlOpener)
{
    m_ui->setupUi(this);
    awakeFromNib();
}

AboutPopupContentView::~AboutPopupContentView() = default;

void AboutPopupContentView::awakeFromNib()
{
    setAccessibleName(qtTrId("ACCESSIBLE_ABOUT"));
    styleLabel(m_ui->versionLabel, latoBold(13), palette::chromeText);
    m_ui->versionLabel->setText(u"Lumora (%1)"_s.arg(QCoreApplication::applicationVersion()));
    styleLabel(m_ui->developerLabel, latoRegular(13), palette::chromeText);
    m_ui->developerLabel->setText(u"KESTREL interactive"_s);
    styleLabel(m_ui->aboutAppLabel, latoRegular(13), palette::chromeText);
    m_ui->aboutAppLabel->setText(qtTrId("ABOUT_TEXT"));
    m_ui->seperatorViewOne->setBackgroundColor(palette::separator);
    styleButton(m_ui->twitterButton, qtTrId("ABOUT_TWITTER"), u"button_icon_twitter"_s, palette::socialBlue,
                palette::socialBlueDark);
    styleButton(m_ui->facebookButton, qtTrId("ABOUT_FACEBOOK"), u"button_icon_facebook"_s, palette::networkNavy,
                palette::networkNavyDark);
    styleButton(m_ui->mailButton, qtTrId("ABOUT_MAIL"), u"button_icon_mail"_s, palette::errorLight, palette::errorDark);
    connect(m_ui->twitterButton, &IconButton::clicked, this, &AboutPopupContentView::twitterClicked);
    connect(m_ui->facebookButton, &IconButton::clicked, this, &AboutPopupContentView::facebookClicked);
    connect(m_ui->mailButton, &IconButton::clicked, this, &AboutPopupContentView::mailClicked);
}

void AboutPopupContentView::twitterClicked()
{
    openAddress(qtTrId("ABOUT_TWITTER_WEB"));
}

void AboutPopupContentView::facebookClicked()
{
    openAddress(qtTrId("ABOUT_FACEBOOK_WEB"));
}

void AboutPopupContentView::mailClicked()
{
    openAddress(qtTrId("ABOUT_MAIL_WEB"));
}

void AboutPopupContentView::openAddress(const QString &address)
{
    m_urlOpener.open(QUrl(address));
}

} // namespace lumora
