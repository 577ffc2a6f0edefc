// SPDX-License-Identifier: MIT
#include "SettingsViewController.h"

#include "foundation/Log.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "ui_SettingsViewController.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

using namespace Qt::StringLiterals;

namespace lumora
{

StyledText contactText(const QString &firstLine, const QString &secondLine, const ContactDetails &details)
{
    QString filled = secondLine;
    filled.replace(u"[MAIL]"_s, details.mail);
    filled.replace(u"[TWITTER]"_s, details.twitter);
    filled.replace(u"[FACEBOOK]"_s, details.facebook);
    StyledText text(firstLine + u'\n' + filled);
    text.setFontOfFirst(firstLine, latoBold(18));
    for (const QString &value : {details.mail, details.twitter, details.facebook})
        text.setFontOfFirst(value, latoBold(13));
    return text;
}

SettingsViewController::SettingsViewController(const Services &services, QObject *parent)
    : QObject(parent), m_services(services), m_view(new QWidget), m_ui(std::make_unique<Ui::SettingsViewController>())
{
    m_ui->setupUi(m_view);
    awakeFromNib();
}

SettingsViewController::~SettingsViewController()
{
    delete m_view;
}

void SettingsViewController::awakeFromNib()
{
    QPalette colors = m_view->palette();
    colors.setColor(QPalette::Window, palette::window);
    m_view->setPalette(colors);
    m_view->setAutoFillBackground(true);

    styleButton(m_ui->contactMailButton, u"Mail"_s, palette::validator, palette::validatorBorder);
    styleButton(m_ui->contactTwitterButton, u"Twitter"_s, palette::validator, palette::validatorBorder);
    m_ui->appIconImageView->setImage(NamedImage(u"info_app_icon"_s));

    styleLabel(m_ui->appTitleLabel, latoBold(18), palette::chromeText);
    m_ui->appTitleLabel->setText(
        qtTrId("INFORMATION_APP").replace(u"[VERSION]"_s, QCoreApplication::applicationVersion()));

    const StyledText info = contactText(qtTrId("INFORMATION_INFO_1"), qtTrId("INFORMATION_INFO_2"),
                                        {qtTrId("INFORMATION_MAIL"), qtTrId("INFORMATION_TWITTER"), u"Facebook"_s});
    styleLabel(m_ui->infoLabel, latoRegular(13), palette::chromeText);
    m_ui->infoLabel->setTextFormat(Qt::RichText);
    m_ui->infoLabel->setText(info.toHtml());
    m_ui->infoLabel->setAccessibleName(info.text());

    connect(m_ui->contactMailButton, &HoverButton::clicked, this, &SettingsViewController::contactMailButtonPressed);
    connect(m_ui->contactTwitterButton, &HoverButton::clicked, this,
            &SettingsViewController::contactTwitterButtonPressed);
}

void SettingsViewController::contactMailButtonPressed()
{
    const QUrl url(u"mailto:"_s + qtTrId("INFORMATION_MAIL") + u"?Subject=HALLO&body=Hallooootjes"_s);
    logLine(u"URL: "_s + m_services.urlOpener.applicationFor(url));
    m_services.urlOpener.open(url);
}

void SettingsViewController::contactTwitterButtonPressed()
{
    m_services.urlOpener.open(QUrl(qtTrId("ABOUT_TWITTER_WEB")));
}

} // namespace lumora
