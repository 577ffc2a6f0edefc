// SPDX-License-Identifier: MIT
#include "LabeledPlaceholders.h"

#include "PlaceholderReport.h"
#include "cli/arguments/Declaration.h"
#include "cli/console/CommandText.h"
#include "cli/console/Interruption.h"
#include "color/forms/ColorReader.h"
#include "placeholders/LabelFont.h"
#include "placeholders/PlaceholderSizes.h"
#include "placeholders/screenshots/ScreenshotRules.h"
#include "placeholders/today/LabeledExport.h"
#include "placeholders/today/StoreSizes.h"

#include <QJsonArray>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

using Sizes = std::vector<ListedSize>;

void add(Sizes &sizes, const ListedSize &size)
{
    if (std::ranges::find(sizes, size) == sizes.end())
        sizes.push_back(size);
}

void addSet(Sizes &sizes, const QString &name)
{
    if (const StoreSet *set = storeSetNamed(name)) {
        for (const StoreSize &one : picturesOf(*set))
            add(sizes, {one.size, 1});
        return;
    }
    for (const QSize size : placeholderSizes(name == u"ios" ? PlaceholderSet::Ios : PlaceholderSet::Mac))
        add(sizes, {size, 1});
}

Complaint wrongSize(const QString &part)
{
    Complaint complaint =
        misuse("bad-value", commandText("CLI_WRONG_SIZE_TEXT", {{"[LEAST]", QString::number(shortestPlaceholderEdge)},
                                                                {"[MOST]", QString::number(longestPlaceholderEdge)}}));
    complaint.path = u"--size "_s + part;
    return complaint;
}

/// All requested sizes without duplicates; empty after a complaint.
std::optional<Sizes> wantedSizes(Console &console, const LabeledPlaceholdersRequest &request)
{
    Sizes sizes;
    for (const QString &name : request.sets)
        addSet(sizes, name);
    for (const QString &list : request.sizes) {
        const Result<Sizes> listed = sizesFromList(list);
        if (!listed) {
            console.complain(wrongSize(listed.failure().subject));
            return std::nullopt;
        }
        for (const ListedSize &size : listed.value())
            add(sizes, size);
    }
    return sizes;
}

/// Reads the color, if one is given; false after a complaint.
bool takeColor(Console &console, const QString &given, QColor &color)
{
    if (given.isEmpty())
        return true;
    const Result<ColorReading> reading = readColor(given);
    if (!reading) {
        console.complain(Complaint{Complaint::Kind::Failure, u"invalid-value"_s, quoted(given),
                                   commandText("CLI_COLOR_NO_FORM"), commandText("CLI_COLOR_NO_FORM_ADVICE")});
        return false;
    }
    const auto [red, green, blue, alpha] = bytesOf(reading.value().color);
    color = QColor(red, green, blue, alpha);
    return true;
}

std::optional<PictureLook> wantedLook(Console &console, const LabeledPlaceholdersRequest &request)
{
    PictureLook look;
    if (!takeColor(console, request.foreground, look.foreground) ||
        !takeColor(console, request.background, look.background))
        return std::nullopt;
    if (!request.text.isEmpty()) {
        look.text = request.text;
        look.text.replace(u"\\n"_s, u"\n"_s);
    }
    if (const QString missing = withoutShape(look.text, LabelFont()); !missing.isEmpty()) {
        console.complain(Complaint{Complaint::Kind::Failure,
                                   u"invalid-value"_s,
                                   quoted(missing),
                                   commandText("CLI_PLACEHOLDERS_NO_SHAPE"),
                                   {}});
        return std::nullopt;
    }
    return look;
}

LabeledOptions optionsFrom(const LabeledPlaceholdersRequest &request)
{
    const LabeledFormat format = request.format == u"webp"  ? LabeledFormat::WebP
                                 : request.format == u"svg" ? LabeledFormat::Svg
                                                            : LabeledFormat::Png;
    return {format, request.quality};
}

QString severityWord(ScreenshotSeverity severity)
{
    return severity == ScreenshotSeverity::Error     ? u"error"_s
           : severity == ScreenshotSeverity::Warning ? u"warning"_s
                                                     : u"note"_s;
}

void printFinding(Console &console, const ScreenshotFinding &finding)
{
    const ScreenshotRule &rule = *finding.rule;
    QString line = commandText(severityKey(rule.severity)) + u' ' + rule.id + u": "_s;
    if (!finding.path.isEmpty())
        line += finding.path + u": "_s;
    line += commandText(rule.titleKey);
    if (!finding.evidence.isEmpty())
        line += u" ("_s + finding.evidence.words() + u')';
    console.print(QString(line + u"; "_s + commandText(rule.fixKey)));
}

QJsonObject findingJson(const ScreenshotFinding &finding)
{
    const ScreenshotRule &rule = *finding.rule;
    return {{u"id"_s, QString(rule.id)},
            {u"severity"_s, severityWord(rule.severity)},
            {u"title"_s, commandText(rule.titleKey)},
            {u"path"_s, finding.path},
            {u"evidence"_s, finding.evidence.words()},
            {u"fix"_s, commandText(rule.fixKey)}};
}

/// Why the options cannot be combined; empty if they can.
std::optional<Complaint> contradiction(const LabeledPlaceholdersRequest &request)
{
    if (request.quality && request.format != u"webp")
        return misuse("conflicting-options",
                      commandText("CLI_NEEDS", {{"[FIRST]", u"--quality"_s}, {"[SECOND]", u"--format webp"_s}}));
    return std::nullopt;
}

} // namespace

void LabeledPlaceholdersRequest::declareOn(Declaration &declaration)
{
    declaration.option("--text", &text, "TEXT", "CLI_PLACEHOLDERS_TEXT");
    declaration.option("--foreground", &foreground, "COLOR", "CLI_PLACEHOLDERS_FOREGROUND");
    declaration.option("--background", &background, "COLOR", "CLI_PLACEHOLDERS_BACKGROUND");
    declaration.option("--format", &format, "FORMAT", "CLI_PLACEHOLDERS_FORMAT").words({u"png"_s, u"webp"_s, u"svg"_s});
    declaration.option("--quality", &quality, "N", "CLI_QUALITY").range(0, 100);
    declaration.option("--check", &checkedFolder, "DIR", "CLI_PLACEHOLDERS_CHECK");
}

bool LabeledPlaceholdersRequest::isMeant() const
{
    const auto isOfToday = [](const QString &set) { return storeSetNamed(set) != nullptr; };
    const auto isList = [](const QString &size) { return size.contains(u'@') || size.trimmed().count(u'x') > 1; };
    return std::ranges::any_of(sets, isOfToday) || sets.size() > 1 || std::ranges::any_of(sizes, isList) ||
           !text.isEmpty() || !foreground.isEmpty() || !background.isEmpty() || !format.isEmpty() || quality;
}

QStringList storeSetNames()
{
    QStringList names;
    for (const StoreSet &set : storeSets())
        names << set.name;
    return names;
}

ExitStatus writeLabeledPlaceholders(Console &console, const LabeledPlaceholdersRequest &request,
                                    const OutputPlace &place)
{
    if (const std::optional<Complaint> complaint = contradiction(request)) {
        console.complain(*complaint);
        return console.finish(ExitStatus::Usage);
    }
    const std::optional<Sizes> sizes = wantedSizes(console, request);
    if (!sizes)
        return console.finish(ExitStatus::Usage);
    const std::optional<PictureLook> look = wantedLook(console, request);
    if (!look)
        return console.finish(ExitStatus::Refused);
    const Result<ExportFolder> folder = place.open(u"placeholders"_s);
    if (!folder) {
        console.complain(folder.failure());
        return console.finish(ExitStatus::Refused);
    }
    const Interruption interruption;
    const auto written = [&console](qsizetype done, qsizetype total) {
        console.progress(done, total, u"placeholders"_s);
        return !Interruption::isRequested();
    };
    const PlaceholderRun run = saveLabeledPictures(*sizes, *look, optionsFrom(request), folder.value(), written);
    console.endProgress();
    return reportPlaceholders(console, run, std::ssize(*sizes));
}

ExitStatus checkScreenshots(Console &console, const LabeledPlaceholdersRequest &request)
{
    const auto isJudged = [](const QString &set) { return set == u"app-store" || set == u"play"; };
    if (!std::ranges::all_of(request.sets, isJudged)) {
        const QString sets = alternatives({u"--set app-store"_s, u"--set play"_s});
        console.complain(
            misuse("conflicting-options", commandText("CLI_NEEDS", {{"[FIRST]", u"--check"_s}, {"[SECOND]", sets}})));
        return console.finish(ExitStatus::Usage);
    }
    const Result<std::vector<ScreenshotFacts>> screenshots = readScreenshots(request.checkedFolder);
    if (!screenshots) {
        console.complain(screenshots.failure());
        return console.finish(ExitStatus::Refused);
    }
    if (screenshots.value().empty()) {
        console.complain(Failure{FailureCode::MissingContent, request.checkedFolder, "DETAIL_NO_PICTURE"});
        return console.finish(ExitStatus::Refused);
    }
    std::set<ScreenshotStore> stores;
    if (request.sets.contains(u"app-store"_s))
        stores.insert(ScreenshotStore::AppStore);
    if (request.sets.contains(u"play"_s))
        stores.insert(ScreenshotStore::Play);
    const std::vector<ScreenshotFinding> findings = screenshotFindings(screenshots.value(), stores);
    QJsonArray array;
    for (const ScreenshotFinding &finding : findings) {
        printFinding(console, finding);
        array.append(findingJson(finding));
    }
    const bool refused = std::ranges::any_of(
        findings, [](const ScreenshotFinding &finding) { return finding.rule->severity == ScreenshotSeverity::Error; });
    console.note(commandText("CLI_PLACEHOLDERS_CHECKED", {{"[COUNT]", QString::number(screenshots.value().size())}}));
    return console.finish(refused ? ExitStatus::Refused : ExitStatus::Done,
                          {{u"checked"_s, static_cast<qint64>(screenshots.value().size())}, {u"findings"_s, array}});
}

} // namespace lumora
