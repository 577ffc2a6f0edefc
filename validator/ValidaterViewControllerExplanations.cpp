// SPDX-License-Identifier: MIT
// The explanations that the validator's pane shows when one of its boxes is pressed.
#include "ValidatePopupContentView.h"
#include "ValidaterViewController.h"
#include "foundation/PrintableText.h"
#include "tool/PopoverAlert.h"
#include "tool/style/ShellMetrics.h"
#include "ui_ValidaterViewController.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/Palette.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// More lines than people read in a popup; a hostile package may list millions.
constexpr qsizetype mostListed = 500;
constexpr qsizetype longestListed = 200;

/// Every sentence ends with a line break, including the last.
QString lines(const QStringList &sentences)
{
    QString text;
    for (const QString &sentence : sentences)
        text += sentence + u'\n';
    return text;
}

/// A bullet line for each, without a line break after the last.
QString bullets(const QStringList &items, const QString &ending)
{
    QStringList list;
    for (const QString &item : items.first(std::min(items.size(), mostListed)))
        list += u"• "_s + printableText(item.left(longestListed)) + ending;
    return list.join(u'\n');
}

} // namespace

void ValidaterViewController::checkboxAppIconsPressed()
{
    if (m_invalidAppIconsArray.isEmpty())
        showPopupWithTitle(qtTrId("VALID_TEXT"), qtTrId("VALID_ICONS_TEXT"), m_ui->validAppIconsBox, false);
    else
        showValidatePopupWithTitle(qtTrId("VALIDATE_ICONS_TITLE"), lines(m_invalidAppIconsArray),
                                   m_ui->validAppIconsBox, true);
}

void ValidaterViewController::checkboxDefaultsPressed()
{
    if (m_invalidDefaultsArray.isEmpty())
        showPopupWithTitle(qtTrId("VALID_TEXT"), qtTrId("VALID_LAUNCH_TEXT"), m_ui->validDefaultImagesBox, false);
    else
        showValidatePopupWithTitle(qtTrId("VALIDATE_DEFAULTS_TITLE"), lines(m_invalidDefaultsArray),
                                   m_ui->validDefaultImagesBox, true);
}

void ValidaterViewController::checkboxBundleIdentifierPressed()
{
    explain(m_ui->validBundleIdentifier, "VALIDATE_BUNDLE_ID_TITLE", "VALIDATE_BUNDLE_ID_TEXT", "VALID_BUNDLE_ID_TEXT");
}

void ValidaterViewController::checkboxReleaseBuildPressed()
{
    explain(m_ui->validReleaseBuild, "VALIDATE_RELEASE_TITLE", "VALIDATE_RELEASE_TEXT", "VALID_RELEASE_TEXT");
}

void ValidaterViewController::explain(CheckboxButton *box, const char *invalidTitleKey, const char *invalidTextKey,
                                      const char *validTextKey)
{
    if (box->isInvalid())
        showValidatePopupWithTitle(qtTrId(invalidTitleKey), qtTrId(invalidTextKey), box, true);
    else
        showPopupWithTitle(qtTrId("VALID_TEXT"), qtTrId(validTextKey), box, false);
}

void ValidaterViewController::checkboxLocalizationsPressed()
{
    if (m_ui->validLocalizationsBox->isInvalid())
        return;
    showValidatePopupWithTitle(qtTrId("VALIDATER_APP_LOCALIZATIONS"),
                               qtTrId("VALIDATE_LOCALIZATIONS_TEXT") + bullets(m_facts.appLocalizations, {}),
                               m_ui->validLocalizationsBox, false);
}

void ValidaterViewController::checkboxURLSchemesPressed()
{
    if (m_ui->validURLSchemesBox->isInvalid())
        return;
    showValidatePopupWithTitle(qtTrId("VALIDATER_APP_URL_SCHEMES"),
                               qtTrId("VALIDATE_URLSCHEME_TEXT") +
                                   bullets(m_facts.appURLSchemes().value_or(QStringList()), u"://"_s),
                               m_ui->validURLSchemesBox, false);
}

void ValidaterViewController::checkboxFacebookAppIDPressed()
{
    if (m_ui->validFacebookAppIDBox->isInvalid())
        return;
    const QString id = m_facts.appFacebookID().value_or(QString());
    showValidatePopupWithTitle(qtTrId("VALIDATER_APP_FACEBOOK_ID"),
                               qtTrId("VALIDATE_FACEBOOK_APP_ID_TEXT") + printableText(id.left(longestListed)),
                               m_ui->validFacebookAppIDBox, false);
}

void ValidaterViewController::showValidatePopupWithTitle(const QString &title, const QString &message,
                                                         QWidget *fromView, bool isError)
{
    if (popupView()->isVisible())
        popupView()->closePopover();
    m_validatePopupContentView->setTitle(title, message);
    m_validatePopup->setBorderColor(isError ? palette::errorLight : palette::successLight);
    m_validatePopupContentView->setLightColor(isError ? palette::errorLight : palette::successLight,
                                              isError ? palette::errorDark : palette::successDark);
    if (m_validatePopup->isVisible()) {
        m_validatePopup->closePopover();
        return;
    }
    m_validatePopupContentView->fitToText();
    m_validatePopup->displayPopover({fromView, Qt::BottomEdge, metrics::popupGap, {}});
}

void ValidaterViewController::showAlertWithTitle(const QString &title, const QString &andMessage, QWidget *fromView)
{
    const auto alert = PopoverAlert::create();
    alert->messageText = title;
    alert->informativeText = andMessage;
    alert->buttonTitles = QStringList{qtTrId("DISMISS")};
    alert->icon = NamedImage(u"help_icon_validater"_s);
    alert->runAsPopoverForView(fromView, {});
}

} // namespace lumora
