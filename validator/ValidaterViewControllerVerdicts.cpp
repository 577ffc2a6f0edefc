// SPDX-License-Identifier: MIT
// The facts and the classic verdicts, written into the report.
#include "ValidaterViewController.h"

#include "ReportWords.h"
#include "ui_ValidaterViewController.h"
#include "validator/bundle/MetadataChecks.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"
#include "words/LongWords.h"
#include "words/ShownFact.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The size of the invisible character that begins a fact.
constexpr int accentRoomSize = 20;
/// The total opacity of a box whose subject is absent, including the dimming of disabled boxes.
constexpr double absentOpacity = 0.25;

/// The key's text with its placeholder filled, once for each missing size.
QStringList sentences(const char *key, QLatin1StringView placeholder, const QList<QSize> &sizes)
{
    QStringList list;
    for (const QSize size : sizes)
        list += qtTrId(key).replace(placeholder, sizeText(size));
    return list;
}

/// The meaning of a box's picture in words, for screen readers; the key's text names the box.
void tell(CheckboxButton *box, const QString &verdict)
{
    box->setAccessibleName(QString(verdict).replace("[CHECK]"_L1, box->text()));
}

void judge(CheckboxButton *box, bool valid)
{
    box->setInvalid(!valid);
    tell(box, valid ? qtTrId("ACCESSIBLE_CHECK_PASSED") : qtTrId("ACCESSIBLE_CHECK_FAILED"));
}

/// An invisible character that is higher than the line: the font counts the accents of capitals as leading, and a label
/// with styled text clips everything above its line.
QString roomForAccents()
{
    return u"<span style=\"font-size:%1px\">\u200B</span>"_s.arg(accentRoomSize);
}

QList<QSize> squares(const QList<int> &edges)
{
    QList<QSize> sizes;
    for (const int edge : edges)
        sizes += QSize(edge, edge);
    return sizes;
}

} // namespace

void ValidaterViewController::showFact(QLabel *field, const char *labelKey, const QString &value)
{
    const QString label = qtTrId(labelKey);
    field->setTextFormat(Qt::RichText);
    const QString shown = value.isEmpty() ? QString(noFact) : shownFact(value);
    const StyledText text = createAttributedTextFromString(breakingLongWords(label + shown), latoBold(fontSize), label);
    field->setText(roomForAccents() + text.toHtml());
    // A dash is only for the eye.
    field->setAccessibleName(label + shownFact(value));
}

void ValidaterViewController::updateInterface(const PackageFacts &facts, const Extraction &extraction,
                                              const std::optional<FoundContent> &found)
{
    m_facts = facts;
    m_extraction = extraction;
    m_found = found;
    showFact(m_ui->appNameField, "VALIDATER_APP_NAME", facts.shownName());
    showFact(m_ui->appVersionField, "VALIDATER_APP_VERSION", facts.appVersion());
    showFact(m_ui->appPlatformField, "VALIDATER_APP_PLATFORM", facts.shownPlatform());
    showFact(m_ui->appMinOSField, "VALIDATER_APP_MINIMUM_OS", facts.shownMinimumOS());
    showFact(m_ui->appBundleIDField, "VALIDATER_APP_BUNDLE_ID", facts.appBundleIdentifier());
    showFact(m_ui->appBuildField, "VALIDATER_BUILD",
             buildKind(facts) == BuildKind::Debug ? qtTrId("VALID_BUILD_DEBUG") : qtTrId("VALID_BUILD_RELEASE"));
    m_fade.fade(factViews() << headViews() << m_ui->appIconField << m_ui->validLocalizationsBox, 1);
    m_fade.fade({m_ui->readingLoaderField}, 0);
    // Its content fades in; the area itself takes the keyboard meanwhile.
    setOpacity(m_ui->reportArea, 1);
}

void ValidaterViewController::validate(const ArtworkReport &artwork)
{
    m_invalidAppIconsArray = sentences("VALIDATE_ICONS_TEXT", "[ICON]"_L1, squares(artwork.findings.missingIcons));
    m_invalidDefaultsArray = sentences("VALIDATE_DEFAULTS_TEXT", "[DEFAULT]"_L1, artwork.findings.missingLaunchImages);
    m_results = checkResults(m_facts, artwork.findings);
    showAppIcon(artwork.appIcon);

    const MetadataVerdicts verdicts = metadataVerdicts(m_facts);
    judge(m_ui->validAppIconsBox, m_invalidAppIconsArray.isEmpty());
    judge(m_ui->validDefaultImagesBox, m_invalidDefaultsArray.isEmpty());
    judge(m_ui->validBundleIdentifier, verdicts.bundleIdentifierValid);
    judge(m_ui->validLocalizationsBox, verdicts.localizationsValid);
    showPresence(m_ui->validURLSchemesBox, verdicts.urlSchemesPresent);
    showPresence(m_ui->validFacebookAppIDBox, verdicts.facebookAppIDPresent);
    m_fade.fade(
        {m_ui->validAppIconsBox, m_ui->validDefaultImagesBox, m_ui->validBundleIdentifier, m_ui->validLocalizationsBox},
        1);
    for (CheckboxButton *box : boxes())
        box->setToolTip(box->isEnabled() ? qtTrId("VALIDATER_BOX_TIP") : QString());
    m_isJudged = true;
    conclude();
}

void ValidaterViewController::giveUp(ReaderEnd end)
{
    m_inspectionEnd = end;
    updateInterface(m_facts, m_extraction, {});
    m_isJudged = true;
    conclude();
}

void ValidaterViewController::showPresence(CheckboxButton *box, bool present)
{
    judge(box, true);
    box->setEnabled(present);
    if (!present) {
        box->setActive(false);
        box->setIdle();
        tell(box, qtTrId("ACCESSIBLE_CHECK_ABSENT"));
    }
    setOpacity(box, present ? 1 : absentOpacity / palette::disabledOpacity);
}

} // namespace lumora
