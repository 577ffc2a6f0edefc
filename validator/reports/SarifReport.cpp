// SPDX-License-Identifier: MIT
#include "SarifReport.h"

#include "validator/rules/Wording.h"

#include <QDir>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QJsonObject message(const QString &text)
{
    return {{u"text"_s, text}};
}

QString text(const char *part)
{
    return QString::fromUtf8(part);
}

/// A reference from the folder that the report is read in, or an absolute address.
QString addressOf(const QString &file)
{
    if (QDir::isAbsolutePath(file))
        return QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded());
    return QString::fromLatin1(QUrl::toPercentEncoding(QDir::cleanPath(file), "/"));
}

QJsonObject ruleJson(const Rule &rule)
{
    QJsonObject object{{u"id"_s, text(rule.id)},
                       {u"shortDescription"_s, message(worded(rule.title))},
                       {u"fullDescription"_s, message(worded(rule.rule))},
                       {u"help"_s, message(worded(rule.fix))},
                       {u"defaultConfiguration"_s, QJsonObject{{u"level"_s, severityName(rule.severity)}}}};
    if (*rule.code != '\0')
        object.insert(u"properties"_s, QJsonObject{{u"tags"_s, QJsonArray{text(rule.code)}}});
    return object;
}

QJsonObject locationJson(qsizetype artifact, const QString &file, const QString &path)
{
    QJsonObject location{
        {u"physicalLocation"_s,
         QJsonObject{{u"artifactLocation"_s, QJsonObject{{u"uri"_s, addressOf(file)}, {u"index"_s, artifact}}}}}};
    if (!path.isEmpty())
        location.insert(u"logicalLocations"_s,
                        QJsonArray{QJsonObject{{u"fullyQualifiedName"_s, path}, {u"kind"_s, u"resource"_s}}});
    return location;
}

/// Gathers results and the rules that they name.
class Run
{
public:
    void add(const JudgedPackage &package)
    {
        const qsizetype artifact = m_artifacts.size();
        m_artifacts.append(QJsonObject{{u"location"_s, QJsonObject{{u"uri"_s, addressOf(package.file)}}}});
        if (!package.failure.isEmpty())
            m_notifications.append(QJsonObject{{u"level"_s, u"error"_s},
                                               {u"message"_s, message(package.failure)},
                                               {u"locations"_s, QJsonArray{locationJson(artifact, package.file, {})}}});
        for (const RuleVerdict &verdict : package.verdicts) {
            for (const Evidence &evidence : verdict.judgement.evidence)
                add(*verdict.rule, evidence, locationJson(artifact, package.file, evidence.path));
        }
    }

    QJsonObject json(const QString &version) const
    {
        const QJsonObject driver{{u"name"_s, u"Lumora"_s}, {u"version"_s, version}, {u"rules"_s, m_rules}};
        const QJsonObject invocation{{u"executionSuccessful"_s, m_notifications.isEmpty()},
                                     {u"toolExecutionNotifications"_s, m_notifications}};
        return {{u"tool"_s, QJsonObject{{u"driver"_s, driver}}},
                {u"invocations"_s, QJsonArray{invocation}},
                {u"artifacts"_s, m_artifacts},
                {u"results"_s, m_results}};
    }

private:
    void add(const Rule &rule, const Evidence &evidence, const QJsonObject &location)
    {
        if (!m_ruleIndexes.contains(&rule)) {
            m_ruleIndexes.insert(&rule, m_rules.size());
            m_rules.append(ruleJson(rule));
        }
        const QString where = evidence.path.isEmpty() ? QString() : QString(evidence.path + u": "_s);
        m_results.append(QJsonObject{
            {u"ruleId"_s, text(rule.id)},
            {u"ruleIndex"_s, m_ruleIndexes.value(&rule)},
            {u"level"_s, severityName(rule.severity)},
            {u"message"_s, message(worded(rule.title) + u" ("_s + where + evidence.text + u"). "_s + worded(rule.fix))},
            {u"locations"_s, QJsonArray{location}}});
    }

    QHash<const Rule *, qsizetype> m_ruleIndexes;
    QJsonArray m_rules;
    QJsonArray m_artifacts;
    QJsonArray m_results;
    QJsonArray m_notifications;
};

} // namespace

QByteArray sarifReport(const QList<JudgedPackage> &packages, const QString &version)
{
    Run run;
    for (const JudgedPackage &package : packages)
        run.add(package);
    return QJsonDocument(QJsonObject{{u"$schema"_s, u"https://json.schemastore.org/sarif-2.1.0.json"_s},
                                     {u"version"_s, u"2.1.0"_s},
                                     {u"runs"_s, QJsonArray{run.json(version)}}})
        .toJson();
}

} // namespace lumora
