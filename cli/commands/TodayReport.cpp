// SPDX-License-Identifier: MIT
#include "TodayReport.h"

#include "cli/console/CommandText.h"
#include "foundation/PrintableText.h"

#include <QDir>
#include <QJsonObject>

#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// In the order of `FindingSeverity`.
constexpr std::array<const char *, 3> severityNames = {"error", "warning", "note"};
constexpr std::array<const char *, 3> severityKeys = {"SEVERITY_ERROR", "SEVERITY_WARNING", "SEVERITY_NOTE"};
/// In the order of `FileChange`.
constexpr std::array<const char *, 4> changeNames = {"new", "replaced", "unchanged", "removed"};
constexpr std::array<const char *, 4> changeKeys = {"ICONS_CHANGE_NEW", "ICONS_CHANGE_REPLACED",
                                                    "ICONS_CHANGE_UNCHANGED", "ICONS_CHANGE_REMOVED"};

QLatin1StringView nameOf(FindingSeverity severity)
{
    return QLatin1StringView(severityNames[static_cast<std::size_t>(severity)]);
}

QLatin1StringView nameOf(FileChange change)
{
    return QLatin1StringView(changeNames[static_cast<std::size_t>(change)]);
}

const DerivationText &textOf(Derivation derivation)
{
    return derivationTexts[static_cast<std::size_t>(derivation)];
}

} // namespace

QJsonArray filesJson(const TodayExport &result)
{
    QJsonArray files;
    for (const TodayFile &file : result.files) {
        if (file.failure)
            continue;
        QJsonObject json{{u"path"_s, file.path}, {u"bytes"_s, file.bytes}};
        if (file.width > 0) {
            json[u"width"_s] = file.width;
            json[u"height"_s] = file.height;
        }
        files.append(json);
    }
    return files;
}

void printDerived(Console &console, const QList<Derived> &derived)
{
    for (const Derived &one : derived) {
        const QString text = commandText(textOf(one.derivation).textKey);
        console.print(printableText(one.detail.isEmpty() ? text : QString(text + u" ("_s + one.detail + u')')));
    }
}

QJsonArray derivedJson(const QList<Derived> &derived)
{
    QJsonArray json;
    for (const Derived &one : derived) {
        json.append(QJsonObject{{u"id"_s, QLatin1StringView(textOf(one.derivation).id)},
                                {u"text"_s, commandText(textOf(one.derivation).textKey)},
                                {u"detail"_s, one.detail}});
    }
    return json;
}

QStringList findingLines(const IconCheck &check, const QString &folder)
{
    QStringList lines;
    const QDir base(folder);
    for (const IconFinding &finding : check.findings) {
        const IconRuleInfo &info = infoOf(finding.rule);
        QString line = commandText(severityKeys[static_cast<std::size_t>(info.severity)]) + u": "_s +
                       base.relativeFilePath(finding.path) + u": "_s + commandText(info.titleKey);
        if (!finding.evidence.isEmpty())
            line += u" ("_s + finding.evidence.words() + u')';
        lines << printableText(line + u"; "_s + commandText(info.fixKey));
    }
    return lines;
}

QJsonArray findingsJson(const IconCheck &check)
{
    QJsonArray json;
    for (const IconFinding &finding : check.findings) {
        const IconRuleInfo &info = infoOf(finding.rule);
        json.append(QJsonObject{{u"id"_s, QLatin1StringView(info.id)},
                                {u"severity"_s, nameOf(info.severity)},
                                {u"title"_s, commandText(info.titleKey)},
                                {u"path"_s, finding.path},
                                {u"evidence"_s, finding.evidence.words()},
                                {u"fix"_s, commandText(info.fixKey)}});
    }
    return json;
}

void printProjectFiles(Console &console, const QList<ProjectFile> &files)
{
    for (const ProjectFile &file : files)
        console.print(
            printableText(commandText(changeKeys[static_cast<std::size_t>(file.change)]) + u": "_s + file.path));
}

QJsonArray projectFilesJson(const QList<ProjectFile> &files)
{
    QJsonArray json;
    for (const ProjectFile &file : files)
        json.append(QJsonObject{{u"path"_s, file.path}, {u"change"_s, nameOf(file.change)}, {u"bytes"_s, file.bytes}});
    return json;
}

QJsonArray projectsJson(const QList<RecognizedProject> &projects)
{
    QJsonArray json;
    for (const RecognizedProject &project : projects)
        json.append(
            QJsonObject{{u"kind"_s, QLatin1StringView(infoOf(project.kind).id)}, {u"folder"_s, project.folder}});
    return json;
}

} // namespace lumora
