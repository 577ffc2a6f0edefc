// SPDX-License-Identifier: MIT
#include "RunnableModels.h"

#include "cli/console/CommandText.h"
#include "devices/today/ModelList.h"
#include "validator/rules/Judging.h"

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

/// The keys of UIRequiredDeviceCapabilities, a list or a table of what must be there and what must not.
QStringList requiredCapabilities(const PackageBundle &app)
{
    const QVariant value = app.info ? app.info->value(u"UIRequiredDeviceCapabilities"_s) : QVariant();
    if (value.typeId() != QMetaType::QVariantMap)
        return value.toStringList();
    QStringList keys;
    const QVariantMap table = value.toMap();
    for (auto each = table.begin(); each != table.end(); ++each) {
        if (each.value().toBool())
            keys += each.key();
    }
    return keys;
}

/// Whether all code of the app's executable is for 64-bit processors.
bool isFor64BitOnly(const PackageContents &contents, const PackageBundle &app)
{
    const PackageBinary *binary = contents.binaryOf(app);
    return binary != nullptr && !binary->facts.slices.isEmpty() &&
           std::ranges::all_of(binary->facts.slices,
                               [](const BinarySlice &slice) { return slice.architecture.startsWith(u"arm64"); });
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
    ModelFilter filter;
    const PackageBundle *app = contents.app();
    if (app == nullptr)
        return filter;
    if (const QString minimum = app->text(u"MinimumOSVersion"_s); !minimum.isEmpty())
        takeIosRange(QString(minimum + u".."_s), filter);
    if (!deviceFamilies(*app).contains(1))
        filter.families = {DeviceFamily::IPad};
    QStringList keys = requiredCapabilities(*app);
    if (isFor64BitOnly(contents, *app))
        keys += u"arm64"_s;
    keys.removeDuplicates();
    for (const QString &key : keys) {
        if (const ModelCapability *capability = modelCapability(key))
            filter.capabilities.push_back(capability);
    }
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
            others[reasonTexts(verdict).join(u", "_s)] += text(group.first().name);
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
