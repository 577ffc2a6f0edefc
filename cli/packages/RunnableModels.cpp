// SPDX-License-Identifier: MIT
#include "RunnableModels.h"

#include "cli/console/CommandText.h"
#include "devices/today/ModelList.h"
#include "devices/today/ReasonWords.h"
#include "validator/rules/DeviceDemands.h"

#include <QJsonObject>
#include <QMap>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

QStringList namesOf(const std::vector<ModelGroup> &groups, DeviceFamily family, const ModelFilter &filter)
{
    QStringList names;
    for (const ModelGroup &group : groups) {
        if (familyOf(group.first()) == family && verdictOn(group, filter).fits)
            names += text(group.first().name);
    }
    return names;
}

QStringList reasonTexts(const GroupVerdict &verdict)
{
    QStringList texts;
    for (const FallsOutReason &reason : verdict.reasons)
        texts += reasonText(reason);
    return texts;
}

} // namespace

ModelFilter demandsOnModels(const PackageContents &contents)
{
    const DeviceDemands demands = deviceDemandsOf(contents);
    ModelFilter filter = filterOf(demands.minimumSystem, demands.padOnly, demands.capabilities);
    filter.otherDevice = demands.otherDevice;
    return filter;
}

QStringList runnableModelLines(const ModelFilter &filter)
{
    const std::vector<ModelGroup> groups = groupedModels(builtInModels());
    QStringList lines{QString(u"  "_s + commandText("CLI_VALIDATE_RUNS_ON"))};
    for (const DeviceFamily family : {DeviceFamily::IPhone, DeviceFamily::IPad, DeviceFamily::IPod}) {
        const QStringList names = namesOf(groups, family, filter);
        lines += u"    "_s + text(familyName(family)) + u": "_s +
                 (names.isEmpty() ? commandText("CLI_NONE") : names.join(u", "_s));
    }
    QMap<QString, QStringList> others;
    for (const ModelGroup &group : groups) {
        if (const GroupVerdict verdict = verdictOn(group, filter); !verdict.fits)
            others[reasonWords(verdict.reasons)] += text(group.first().name);
    }
    if (!others.isEmpty())
        lines += u"  "_s + commandText("CLI_VALIDATE_RUNS_NOT_ON");
    for (auto each = others.begin(); each != others.end(); ++each)
        lines += u"    "_s + each.key() + u": "_s + each.value().join(u", "_s);
    return lines;
}

QJsonArray runnableModelsJson(const ModelFilter &filter)
{
    QJsonArray models;
    for (const ModelGroup &group : groupedModels(builtInModels())) {
        QStringList identifiers;
        for (const DeviceModel *variant : group.variants)
            identifiers += text(variant->identifier);
        const GroupVerdict verdict = verdictOn(group, filter);
        models += QJsonObject{{u"name"_s, text(group.first().name)},
                              {u"identifiers"_s, QJsonArray::fromStringList(identifiers)},
                              {u"family"_s, text(familyKey(familyOf(group.first())))},
                              {u"fits"_s, verdict.fits},
                              {u"reasons"_s, QJsonArray::fromStringList(reasonTexts(verdict))}};
    }
    return models;
}

} // namespace lumora
