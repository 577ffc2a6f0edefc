// SPDX-License-Identifier: MIT
#include "ReportWords.h"

#include "validator/bundle/MetadataChecks.h"
#include "words/ShownFact.h"

#include <QLocale>
#include <QObject>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString bundleIdentifierReason(const PackageFacts &facts)
{
    if (facts.appBundleIdentifier().isEmpty())
        return qtTrId("VALIDATER_REASON_NO_BUNDLE_ID");
    if (facts.provisioningProfile.value_or(QString()).isEmpty())
        return qtTrId("VALIDATER_REASON_NO_PROFILE");
    return qtTrId("VALIDATER_REASON_BUNDLE_ID").replace("[ID]"_L1, shownFact(facts.appBundleIdentifier()));
}

QString namesText(const FoundContent &found)
{
    QStringList names;
    for (const QString &name : found.names)
        names += shownFact(name);
    QString text = names.join(u", "_s);
    if (found.nameCount > found.names.size())
        text += qtTrId("VALIDATER_FOUND_MORE")
                    .replace("[COUNT]"_L1, QLocale().toString(found.nameCount - found.names.size()));
    return text;
}

QString archiveText(const FoundContent &found)
{
    if (found.hasPayload && found.nameCount == 0)
        return qtTrId("VALIDATER_FOUND_EMPTY_PAYLOAD");
    return (found.hasPayload ? qtTrId("VALIDATER_FOUND_OTHER_PAYLOAD") : qtTrId("VALIDATER_FOUND_NO_PAYLOAD"))
        .replace("[NAMES]"_L1, namesText(found));
}

QString kindText(const FoundContent &found)
{
    switch (found.kind) {
    case FoundKind::Nothing:
        return qtTrId("VALIDATER_FOUND_NOTHING");
    case FoundKind::Folder:
        return qtTrId("VALIDATER_FOUND_FOLDER");
    case FoundKind::NoOrdinaryFile:
        return qtTrId("VALIDATER_FOUND_DEVICE");
    case FoundKind::Unreadable:
        return qtTrId("VALIDATER_FOUND_UNREADABLE");
    case FoundKind::EmptyFile:
        return qtTrId("VALIDATER_FOUND_EMPTY_FILE");
    case FoundKind::Text:
        return qtTrId("VALIDATER_FOUND_TEXT");
    case FoundKind::Picture:
        return qtTrId("VALIDATER_FOUND_PICTURE");
    case FoundKind::Document:
        return qtTrId("VALIDATER_FOUND_DOCUMENT");
    case FoundKind::OtherArchive:
        return qtTrId("VALIDATER_FOUND_OTHER_ARCHIVE");
    case FoundKind::BrokenArchive:
        return qtTrId("VALIDATER_FOUND_BROKEN_ARCHIVE");
    case FoundKind::EmptyArchive:
        return qtTrId("VALIDATER_FOUND_EMPTY_ARCHIVE");
    case FoundKind::ArchiveWithoutApp:
        return archiveText(found);
    case FoundKind::Data:
        break;
    }
    return qtTrId("VALIDATER_FOUND_DATA");
}

QString factLine(const QString &label, const QString &value)
{
    return label + (value.isEmpty() ? QString(noFact) : shownFact(value));
}

} // namespace

QString sumText(const CheckSum &sum)
{
    const QString text = sum.failed == 0 ? qtTrId("VALIDATER_SUM_PASSED") : qtTrId("VALIDATER_SUM_FAILED");
    return QString(text)
        .replace("[FAILED]"_L1, QString::number(sum.failed))
        .replace("[COUNT]"_L1, QString::number(sum.judged));
}

QString reasonText(const CheckResult &result, const PackageFacts &facts)
{
    if (result.verdict != CheckVerdict::Failed)
        return {};
    switch (result.check) {
    case Check::AppIcons:
        return qtTrId("VALIDATER_REASON_ICONS");
    case Check::LaunchImages:
        return qtTrId("VALIDATER_REASON_LAUNCH");
    case Check::BundleIdentifier:
        return bundleIdentifierReason(facts);
    case Check::Localizations:
        return qtTrId("VALIDATER_REASON_LOCALIZATIONS");
    case Check::UrlSchemes:
    case Check::FacebookAppId:
        break;
    }
    return {};
}

QString foundText(const FoundContent &found)
{
    return kindText(found) + u"\n\n"_s + qtTrId("VALIDATER_NO_PACKAGE_ADVICE");
}

QString noteText(const PackageFacts &facts, const Extraction &extraction)
{
    QStringList notes;
    if (!extraction.outcome)
        notes += qtTrId("VALIDATER_NOTE_CUT");
    if (!extraction.damagedEntries.isEmpty())
        notes += qtTrId("VALIDATER_NOTE_DAMAGED")
                     .replace("[COUNT]"_L1, QLocale().toString(extraction.damagedEntries.size()))
                     .replace("[FILE]"_L1, shownFact(extraction.damagedEntries.first()));
    if (!facts.appInfoPlist)
        notes += qtTrId("VALIDATER_NOTE_NO_LIST");
    return notes.join(u'\n');
}

QString checkName(Check check)
{
    switch (check) {
    case Check::AppIcons:
        return qtTrId("VALIDATER_VALIDAT_ICONS");
    case Check::LaunchImages:
        return qtTrId("VALIDATER_VALIDATE_DEFAULTS");
    case Check::BundleIdentifier:
        return qtTrId("VALIDATER_VALIDATE_BUNDLE_ID");
    case Check::Localizations:
        return qtTrId("VALIDATER_APP_LOCALIZATIONS");
    case Check::UrlSchemes:
        return qtTrId("VALIDATER_APP_URL_SCHEMES");
    case Check::FacebookAppId:
        break;
    }
    return qtTrId("VALIDATER_APP_FACEBOOK_ID");
}

QString verdictText(const CheckResult &result)
{
    QString text;
    switch (result.verdict) {
    case CheckVerdict::Passed:
        text = qtTrId("ACCESSIBLE_CHECK_PASSED");
        break;
    case CheckVerdict::Failed:
        text = qtTrId("ACCESSIBLE_CHECK_FAILED");
        break;
    case CheckVerdict::Absent:
        text = qtTrId("ACCESSIBLE_CHECK_ABSENT");
        break;
    }
    return text.replace("[CHECK]"_L1, checkName(result.check));
}

QStringList factLines(const PackageFacts &facts)
{
    const QString build =
        buildKind(facts) == BuildKind::Debug ? qtTrId("VALID_BUILD_DEBUG") : qtTrId("VALID_BUILD_RELEASE");
    return {
        factLine(qtTrId("VALIDATER_APP_NAME"), facts.shownName()),
        factLine(qtTrId("VALIDATER_APP_VERSION"), facts.appVersion()),
        factLine(qtTrId("VALIDATER_APP_PLATFORM"), facts.shownPlatform()),
        factLine(qtTrId("VALIDATER_APP_MINIMUM_OS"), facts.shownMinimumOS()),
        factLine(qtTrId("VALIDATER_APP_BUNDLE_ID"), facts.appBundleIdentifier()),
        factLine(qtTrId("VALIDATER_BUILD"), build),
    };
}

} // namespace lumora
