// SPDX-License-Identifier: MIT
#include "DeviceModels.h"

#include "cli/arguments/ArgumentParser.h"
#include "cli/arguments/Declaration.h"
#include "cli/arguments/Suggestion.h"
#include "cli/console/CommandText.h"
#include "devices/today/ModelCard.h"
#include "devices/today/ModelList.h"
#include "devices/today/ScreenClass.h"
#include "foundation/PrintableText.h"
#include "foundation/WholeFile.h"

#include <QJsonArray>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

template <typename Value> struct Word
{
    QLatin1StringView word;
    Value value;
};

constexpr std::array<Word<DeviceFamily>, 3> familyWords{
    {{"iphone"_L1, DeviceFamily::IPhone}, {"ipad"_L1, DeviceFamily::IPad}, {"ipod"_L1, DeviceFamily::IPod}}};
constexpr std::array<Word<Biometry>, 3> biometryWords{
    {{"none"_L1, Biometry::None}, {"touchid"_L1, Biometry::TouchId}, {"faceid"_L1, Biometry::FaceId}}};
constexpr std::array<Word<ModelFeature>, 4> featureWords{{{"dynamic-island"_L1, ModelFeature::DynamicIsland},
                                                          {"lidar"_L1, ModelFeature::Lidar},
                                                          {"usb-c"_L1, ModelFeature::UsbC},
                                                          {"5g"_L1, ModelFeature::Cellular5G}}};

template <typename Table> QStringList wordsOf(const Table &table)
{
    QStringList words;
    for (const auto &one : table)
        words << one.word;
    return words;
}

template <typename Table, typename Set> void takeWords(const QStringList &words, const Table &table, Set &set)
{
    for (const auto &one : table) {
        if (words.contains(one.word))
            set.insert(one.value);
    }
}

QStringList capabilityKeys()
{
    QStringList keys;
    for (const ModelCapability &capability : modelCapabilities())
        keys << text(capability.key);
    return keys;
}

QStringList screenKeys()
{
    QStringList keys;
    for (const ScreenClass &screen : screenClasses())
        keys << text(screen.key);
    return keys;
}

/// The filter; empty if the range of versions is invalid.
std::optional<ModelFilter> filterFrom(const DeviceModelsRequest &request)
{
    ModelFilter filter;
    if (!request.ios.isEmpty() && !takeIosRange(request.ios, filter))
        return std::nullopt;
    takeWords(request.families, familyWords, filter.families);
    takeWords(request.biometries, biometryWords, filter.biometries);
    takeWords(request.features, featureWords, filter.features);
    filter.chips = request.chips;
    filter.screenClasses = request.screens;
    filter.search = request.search;
    for (const QString &key : request.capabilities)
        filter.capabilities.push_back(modelCapability(key));
    return filter;
}

bool isNamed(const ModelGroup &group, const QString &wanted)
{
    return std::ranges::any_of(group.variants, [&wanted](const DeviceModel *model) {
        return text(model->identifier).compare(wanted, Qt::CaseInsensitive) == 0 ||
               text(model->name).compare(wanted, Qt::CaseInsensitive) == 0;
    });
}

QJsonValue sizeJson(int width, int height)
{
    return width > 0 ? QJsonValue(QJsonObject{{u"width"_s, width}, {u"height"_s, height}}) : QJsonValue();
}

QJsonArray sizesJson(const std::vector<QSize> &sizes)
{
    QJsonArray array;
    for (const QSize size : sizes)
        array.append(sizeJson(size.width(), size.height()));
    return array;
}

QJsonValue havingJson(Having having)
{
    return having == Having::Unknown ? QJsonValue() : QJsonValue(having == Having::Yes);
}

QJsonValue knownJson(const QString &value)
{
    return value.isEmpty() ? QJsonValue() : QJsonValue(value);
}

QJsonArray variantsJson(const ModelGroup &group, const ModelFilter &filter)
{
    QJsonArray variants;
    for (const DeviceModel *model : group.variants)
        variants.append(QJsonObject{{u"identifier"_s, text(model->identifier)},
                                    {u"released"_s, text(model->released)},
                                    {u"minOS"_s, versionText(model->minOs)},
                                    {u"maxOS"_s, versionText(model->maxOs)},
                                    {u"fits"_s, reasonsAgainst(*model, filter).empty()}});
    return variants;
}

/// Facts that the whole group shares are printed once; others for the first variant and for each.
QJsonObject modelJson(const ModelGroup &group, const ModelFilter &filter)
{
    const GroupVerdict verdict = verdictOn(group, filter);
    const DeviceModel &model = group.first();
    QJsonArray identifiers;
    for (const DeviceModel *variant : group.variants)
        identifiers.append(text(variant->identifier));
    QJsonArray reasons;
    for (const FallsOutReason &reason : verdict.reasons)
        reasons.append(reasonText(reason));
    const bool known = hasKnownScreen(model);
    const Biometry biometry = model.biometry;
    return {{u"identifiers"_s, identifiers},
            {u"name"_s, text(model.name)},
            {u"family"_s, text(familyKey(familyOf(model)))},
            {u"fits"_s, verdict.fits},
            {u"reasons"_s, reasons},
            {u"variants"_s, variantsJson(group, filter)},
            {u"released"_s, text(model.released)},
            {u"chip"_s, text(model.chip)},
            {u"arch"_s, text(model.arch)},
            {u"minOS"_s, versionText(model.minOs)},
            {u"maxOS"_s, versionText(model.maxOs)},
            {u"pixels"_s, sizeJson(model.widthPixels, model.heightPixels)},
            {u"rendered"_s, sizeJson(model.renderWidth, model.renderHeight)},
            {u"points"_s, sizeJson(model.widthPoints, model.heightPoints)},
            {u"scale"_s, known ? QJsonValue(model.scale) : QJsonValue()},
            {u"diagonal"_s, model.diagonalInches > 0.0 ? QJsonValue(model.diagonalInches) : QJsonValue()},
            {u"ppi"_s, known ? QJsonValue(model.pixelsPerInch) : QJsonValue()},
            {u"screenClass"_s, knownJson(cardText(group, CardFact::ScreenClassKey))},
            {u"biometry"_s, biometry == Biometry::Unknown ? QJsonValue() : QJsonValue(text(biometryKey(biometry)))},
            {u"dynamicIsland"_s, havingJson(model.dynamicIsland)},
            {u"lidar"_s, havingJson(model.lidar)},
            {u"usbC"_s, havingJson(model.usbC)},
            {u"cellular5G"_s, havingJson(model.cellular5G)},
            {u"capabilities"_s,
             QJsonArray::fromStringList(cardText(group, CardFact::Capabilities).split(u' ', Qt::SkipEmptyParts))},
            {u"launchSizes"_s, sizesJson(launchSizes(model))},
            {u"screenshotSizes"_s, sizesJson(screenshotSizes(model))}};
}

QString csvField(const QString &value)
{
    const bool quotes = value.contains(u',') || value.contains(u'"');
    return quotes ? QString(u'"' + QString(value).replace(u'"', u"\"\""_s) + u'"') : value;
}

/// One line per model, with the card's facts as columns.
void printCsv(Console &console, const std::vector<ModelGroup> &groups, const ModelFilter &filter)
{
    QStringList header{u"name"_s, u"family"_s, u"fits"_s, u"reasons"_s};
    for (int index = 0; index < cardFactCount; ++index)
        header << cardFactName(static_cast<CardFact>(index));
    console.print(header.join(u','));
    for (const ModelGroup &group : groups) {
        const GroupVerdict verdict = verdictOn(group, filter);
        QStringList reasons;
        for (const FallsOutReason &reason : verdict.reasons)
            reasons << reasonText(reason);
        QStringList fields{text(group.first().name), text(familyKey(familyOf(group.first()))),
                           verdict.fits ? u"yes"_s : u"no"_s, reasons.join(u"; "_s)};
        for (int index = 0; index < cardFactCount; ++index)
            fields << cardText(group, static_cast<CardFact>(index));
        for (QString &field : fields)
            field = csvField(field);
        console.print(fields.join(u','));
    }
}

/// The cards side by side, with a line for each fact that any of them has.
void printCards(Console &console, const std::vector<ModelGroup> &groups, const ModelFilter &filter)
{
    QStringList names;
    for (const ModelGroup &group : groups)
        names << text(group.first().name);
    console.print(names.join(u" | "_s));
    for (const ComparedFact &row : comparedFacts(groups)) {
        if (std::ranges::any_of(row.values, [](const QString &value) { return !value.isEmpty(); }))
            console.print(QString(cardFactName(row.fact) + u": "_s + row.values.join(u" | "_s)));
    }
    for (const ModelGroup &group : groups) {
        for (const FallsOutReason &reason : verdictOn(group, filter).reasons)
            console.print(QString(text(group.first().name) + u' ' + reasonText(reason)));
    }
}

void printList(Console &console, const std::vector<ModelGroup> &groups, const ModelFilter &filter)
{
    for (const auto &[word, family] : familyWords) {
        QStringList names;
        for (const ModelGroup &group : groups) {
            if (familyOf(group.first()) == family && verdictOn(group, filter).fits)
                names << text(group.first().name);
        }
        console.print(QString(text(familyName(family)) + u": "_s +
                              (names.isEmpty() ? commandText("CLI_NONE") : names.join(u", "_s))));
    }
}

/// The complaint about the requested chips, if no model has one of them.
std::optional<Complaint> unknownChip(const QStringList &chips, std::span<const DeviceModel> models)
{
    for (const QString &chip : chips) {
        ModelFilter filter;
        filter.chips = {chip};
        if (std::ranges::any_of(models,
                                [&](const DeviceModel &model) { return reasonsAgainst(model, filter).empty(); }))
            continue;
        QStringList known;
        for (const DeviceModel &model : models)
            known << shortChipName(text(model.chip));
        known.removeDuplicates();
        Complaint complaint =
            misuse("bad-value", commandText("CLI_DEVICES_NO_CHIP"), didYouMean(nearestWords(chip, known)));
        complaint.path = u"--chip "_s + chip;
        return complaint;
    }
    return std::nullopt;
}

/// The advice for an unknown model: the nearest names, or where to find names.
QString adviceForModel(const QString &wanted, std::span<const DeviceModel> models)
{
    QStringList known;
    for (const DeviceModel &model : models)
        known << text(model.name) << text(model.identifier);
    known.removeDuplicates();
    const QString nearest = didYouMean(nearestWords(wanted, known));
    return nearest.isEmpty() ? commandText("CLI_DEVICES_NO_MODEL_ADVICE") : nearest;
}

ExitStatus printModels(Console &console, const DeviceModelsRequest &request, std::span<const DeviceModel> models)
{
    const std::optional<ModelFilter> filter = filterFrom(request);
    if (!filter) {
        Complaint complaint = misuse("bad-value", commandText("CLI_DEVICES_NO_RANGE"));
        complaint.path = u"--ios "_s + request.ios;
        console.complain(complaint);
        return console.finish(ExitStatus::Usage);
    }
    if (const std::optional<Complaint> complaint = unknownChip(request.chips, models)) {
        console.complain(*complaint);
        return console.finish(ExitStatus::Usage);
    }
    std::vector<ModelGroup> groups = groupedModels(models);
    for (const QString &wanted : request.models) {
        if (std::ranges::none_of(groups, [&wanted](const ModelGroup &group) { return isNamed(group, wanted); })) {
            console.complain(Complaint{Complaint::Kind::Failure, u"not-found"_s, quoted(wanted),
                                       commandText("CLI_DEVICES_NO_MODEL"), adviceForModel(wanted, models)});
            return console.finish(ExitStatus::Refused);
        }
    }
    if (!request.models.isEmpty()) {
        std::erase_if(groups, [&request](const ModelGroup &group) {
            return std::ranges::none_of(request.models,
                                        [&group](const QString &wanted) { return isNamed(group, wanted); });
        });
    }
    QJsonArray all;
    for (const ModelGroup &group : groups)
        all.append(modelJson(group, *filter));
    if (request.csv)
        printCsv(console, groups, *filter);
    else if (!request.models.isEmpty())
        printCards(console, groups, *filter);
    else
        printList(console, groups, *filter);
    return console.finish(ExitStatus::Done, {{u"models"_s, all}});
}

} // namespace

void DeviceModelsRequest::declareOn(Declaration &declaration)
{
    declaration.flag("--today", &today, "CLI_DEVICES_TODAY");
    declaration.option("--family", &families, "FAMILY", "CLI_DEVICES_FAMILY").words(wordsOf(familyWords)).list();
    declaration.option("--chip", &chips, "CHIP", "CLI_DEVICES_CHIP").list();
    declaration.option("--capability", &capabilities, "KEY", "CLI_DEVICES_CAPABILITY").words(capabilityKeys()).list();
    declaration.option("--screen", &screens, "INCHES", "CLI_DEVICES_SCREEN").words(screenKeys()).list();
    declaration.option("--biometry", &biometries, "KIND", "CLI_DEVICES_BIOMETRY").words(wordsOf(biometryWords)).list();
    declaration.option("--with", &features, "PART", "CLI_DEVICES_WITH").words(wordsOf(featureWords)).list();
    declaration.option("--search", &search, "TEXT", "CLI_DEVICES_SEARCH");
    // Identifiers contain a comma, so this option is given several times instead.
    declaration.option("--model", &models, "MODEL", "CLI_DEVICES_MODEL");
    declaration.option("--data", &dataFile, "FILE", "CLI_DEVICES_DATA");
    declaration.flag("--csv", &csv, "CLI_DEVICES_CSV");
    declaration.atMostOne({u"--csv"_s, u"--json"_s});
}

bool DeviceModelsRequest::isMeant() const
{
    return today || csv || !families.isEmpty() || !chips.isEmpty() || !capabilities.isEmpty() || !screens.isEmpty() ||
           !biometries.isEmpty() || !features.isEmpty() || !search.isEmpty() || !models.isEmpty() ||
           !dataFile.isEmpty();
}

ExitStatus printDeviceModels(Console &console, const DeviceModelsRequest &request)
{
    if (request.dataFile.isEmpty())
        return printModels(console, request, builtInModels());
    const Result<QByteArray> bytes = readWholeFile(request.dataFile, largestModelFile);
    if (!bytes) {
        console.complain(bytes.failure());
        return console.finish(ExitStatus::Refused);
    }
    const Result<ModelList> list = readModelList(bytes.value(), request.dataFile);
    if (!list) {
        Complaint complaint = complaintOf(list.failure(), commandText("CLI_DEVICES_DATA_ADVICE"));
        complaint.message = list.failure().detail.words();
        console.complain(complaint);
        return console.finish(ExitStatus::Refused);
    }
    return printModels(console, request, list.value().models());
}

} // namespace lumora
