// SPDX-License-Identifier: MIT
#include "ModelList.h"

#include "foundation/PrintableText.h"

#include <QDate>
#include <QHash>
#include <QStringDecoder>

#include <array>
#include <charconv>
#include <optional>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr std::string_view header =
    "identifier,name,released,chip,arch,minOS,maxOS,width_px,height_px,scale,render_width_px,render_height_px,"
    "width_pt,height_pt,diagonal_in,ppi,biometry,dynamic_island,lidar,usb_c,cellular_5g,cap_arm64,cap_metal,"
    "cap_arkit,cap_min_performance_a12,cap_gaming_tier";
constexpr std::size_t columnCount = 26;
constexpr std::size_t longestField = 100;
constexpr std::array<std::string_view, 5> architectures{"armv6", "armv7", "armv7s", "arm64", "arm64e"};

using Fields = std::array<std::string_view, columnCount>;

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

/// The key of a text on a wrong line, and the values in it besides the line's number.
struct Fault
{
    const char *key;
    FailureDetail::Values values;
};

/// The fault of a line, if it has one.
using Complaint = std::optional<Fault>;

/// Removes the next field from the line. Quotation marks are only allowed around a whole field.
std::optional<std::string_view> nextField(std::string_view &rest)
{
    std::string_view field;
    if (rest.starts_with('"')) {
        const std::size_t end = rest.find('"', 1);
        if (end == std::string_view::npos || (end + 1 < rest.size() && rest[end + 1] != ','))
            return std::nullopt;
        field = rest.substr(1, end - 1);
        rest.remove_prefix(end + 1);
    } else {
        field = rest.substr(0, rest.find(','));
        rest.remove_prefix(field.size());
        if (field.find('"') != std::string_view::npos)
            return std::nullopt;
    }
    return field;
}

Complaint split(std::string_view line, Fields &fields)
{
    for (std::size_t index = 0; index < columnCount; ++index) {
        const std::optional<std::string_view> field = nextField(line);
        if (!field)
            return Fault{"DETAIL_QUOTATION_MARKS", {}};
        if (field->size() > longestField)
            return Fault{"DETAIL_LONG_FIELD", {{"[COUNT]", QString::number(longestField)}}};
        fields[index] = *field;
        const bool last = index + 1 == columnCount;
        if (last != line.empty())
            return Fault{"DETAIL_COLUMNS", {{"[COUNT]", QString::number(columnCount)}}};
        if (!last)
            line.remove_prefix(1);
    }
    return std::nullopt;
}

/// Reads one line's fields in order and remembers the first wrong one.
class FieldReader
{
public:
    explicit FieldReader(const Fields &fields) : m_fields(fields) {}

    const Complaint &complaint() const { return m_complaint; }

    std::string_view word()
    {
        const std::string_view field = next();
        const QString word = text(field);
        if (word.trimmed().isEmpty())
            complain("DETAIL_FIELD_EMPTY");
        else if (printableText(word) != word)
            complain("DETAIL_FIELD_PRINTABLE");
        return field;
    }

    std::string_view architecture()
    {
        const std::string_view field = next();
        if (std::ranges::find(architectures, field) == architectures.end())
            complain("DETAIL_FIELD_ARCHITECTURE");
        return field;
    }

    /// Returns 0 for an empty field.
    int number(int most)
    {
        const std::string_view field = next();
        int value = 0;
        const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), value);
        if (!field.empty() && (error != std::errc() || end != field.data() + field.size() || value < 1 || value > most))
            complain("DETAIL_FIELD_NUMBER", {{"[MOST]", QString::number(most)}});
        return value;
    }

    double inches()
    {
        const std::string_view field = next();
        bool ok = true;
        const double value = field.empty() ? 0.0 : text(field).toDouble(&ok);
        if (!ok || (!field.empty() && !(value >= 1.0 && value <= 100.0)))
            complain("DETAIL_FIELD_INCHES");
        return value;
    }

    OsVersion version()
    {
        const std::optional<OsVersion> version = osVersion(text(next()));
        if (!version)
            complain("DETAIL_FIELD_VERSION");
        return version.value_or(OsVersion{});
    }

    std::string_view date()
    {
        const std::string_view field = next();
        const QString date = text(field);
        const QDate day = QDate::fromString(date.size() == 7 ? QString(date + u"-01"_s) : date, Qt::ISODate);
        if (!day.isValid() || (date.size() != 7 && date.size() != 10))
            complain("DETAIL_FIELD_DATE");
        return field;
    }

    Biometry biometry()
    {
        const std::string_view field = next();
        for (const Biometry one : {Biometry::None, Biometry::TouchId, Biometry::FaceId}) {
            if (field == biometryKey(one))
                return one;
        }
        if (!field.empty())
            complain("DETAIL_FIELD_BIOMETRY");
        return Biometry::Unknown;
    }

    Having having()
    {
        const std::string_view field = next();
        if (!field.empty() && field != "0" && field != "1")
            complain("DETAIL_FIELD_HAVING");
        return field.empty() ? Having::Unknown : field == "1" ? Having::Yes : Having::No;
    }

    bool flag()
    {
        const Having value = having();
        if (value == Having::Unknown)
            complain("DETAIL_FIELD_FLAG");
        return value == Having::Yes;
    }

private:
    std::string_view next() { return m_fields[m_column++]; }

    void complain(const char *key, FailureDetail::Values values = {})
    {
        if (m_complaint)
            return;
        values.emplace_back("[COLUMN]", text(header).split(u',')[static_cast<qsizetype>(m_column) - 1]);
        m_complaint = Fault{key, std::move(values)};
    }

    const Fields &m_fields;
    std::size_t m_column = 0;
    Complaint m_complaint;
};

/// Whether it has the form of "iPhone15,2".
bool isIdentifier(std::string_view text)
{
    const auto isNumber = [](std::string_view digits) {
        return !digits.empty() && std::ranges::all_of(digits, [](char digit) { return digit >= '0' && digit <= '9'; });
    };
    for (const std::string_view family : {"iPhone", "iPad", "iPod"}) {
        if (!text.starts_with(family))
            continue;
        const std::string_view numbers = text.substr(family.size());
        const std::size_t comma = std::min(numbers.find(','), numbers.size());
        return isNumber(numbers.substr(0, comma)) && comma < numbers.size() && isNumber(numbers.substr(comma + 1));
    }
    return false;
}

Complaint contradiction(const DeviceModel &model)
{
    if (!isIdentifier(model.identifier))
        return Fault{"DETAIL_FOREIGN_MODEL", {}};
    if (comparedVersions(model.minOs, model.maxOs) > 0)
        return Fault{"DETAIL_VERSION_ORDER", {}};
    if (model.arm64 != model.arch.starts_with("arm64"))
        return Fault{"DETAIL_ARCHITECTURE_FLAG", {}};
    const std::array sizes = {model.widthPixels,  model.heightPixels, model.scale,        model.renderWidth,
                              model.renderHeight, model.widthPoints,  model.heightPoints, model.pixelsPerInch};
    const auto given = std::ranges::count_if(sizes, [](int size) { return size > 0; });
    if (given != 0 && given != static_cast<std::ptrdiff_t>(sizes.size()))
        return Fault{"DETAIL_PART_OF_SCREEN", {}};
    if (model.renderWidth != model.widthPoints * model.scale || model.renderHeight != model.heightPoints * model.scale)
        return Fault{"DETAIL_RENDER_SIZE", {}};
    if (model.widthPixels > model.heightPixels)
        return Fault{"DETAIL_NOT_PORTRAIT", {}};
    return std::nullopt;
}

Complaint readModel(std::string_view line, DeviceModel &model)
{
    Fields fields;
    if (const Complaint complaint = split(line, fields))
        return complaint;
    constexpr int longestEdge = 20000;
    FieldReader reader(fields);
    model.identifier = reader.word();
    model.name = reader.word();
    model.released = reader.date();
    model.chip = reader.word();
    model.arch = reader.architecture();
    model.minOs = reader.version();
    model.maxOs = reader.version();
    model.widthPixels = reader.number(longestEdge);
    model.heightPixels = reader.number(longestEdge);
    model.scale = reader.number(10);
    model.renderWidth = reader.number(longestEdge);
    model.renderHeight = reader.number(longestEdge);
    model.widthPoints = reader.number(longestEdge);
    model.heightPoints = reader.number(longestEdge);
    model.diagonalInches = reader.inches();
    model.pixelsPerInch = reader.number(10000);
    model.biometry = reader.biometry();
    model.dynamicIsland = reader.having();
    model.lidar = reader.having();
    model.usbC = reader.having();
    model.cellular5G = reader.having();
    model.arm64 = reader.flag();
    model.metal = reader.flag();
    model.arkit = reader.flag();
    model.minimumPerformanceA12 = reader.flag();
    model.gamingTier = reader.flag();
    return reader.complaint() ? reader.complaint() : contradiction(model);
}

bool isPlainText(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(bytes);
    const auto isControl = [](QChar one) { return one < u' ' && one != u'\n' && one != u'\r' && one != u'\t'; };
    return !decoder.hasError() && std::ranges::none_of(decoded, isControl);
}

std::string_view withoutReturn(std::string_view line)
{
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

} // namespace

Result<ModelList> readModelList(const QByteArray &bytes, const QString &name)
{
    if (bytes.size() > largestModelFile)
        return Failure{FailureCode::TooLarge, name, "DETAIL_MORE_THAN_MEBIBYTE"};
    if (!isPlainText(bytes))
        return Failure{FailureCode::NotReadable, name, "DETAIL_NOT_UTF8"};
    const auto refused = [&name](int line, Fault fault) {
        fault.values.emplace_back("[LINE]", QString::number(line));
        return Failure{FailureCode::NotReadable, name, {fault.key, std::move(fault.values)}};
    };
    std::vector<DeviceModel> models;
    QHash<QByteArrayView, int> lineOf;
    bool headed = false;
    int number = 0;
    std::string_view rest(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    constexpr std::string_view byteOrderMark = "\xef\xbb\xbf"; // spreadsheets write one
    if (rest.starts_with(byteOrderMark))
        rest.remove_prefix(byteOrderMark.size());
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        const std::string_view line = withoutReturn(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        ++number;
        if (line.empty() || line.starts_with('#'))
            continue;
        if (!headed) {
            if (line != header)
                return refused(number, Fault{"DETAIL_HEADER", {{"[HEADER]", text(header)}}});
            headed = true;
            continue;
        }
        DeviceModel model;
        if (const Complaint complaint = readModel(line, model))
            return refused(number, *complaint);
        const QByteArrayView identifier(model.identifier.data(), static_cast<qsizetype>(model.identifier.size()));
        if (const int first = lineOf.value(identifier); first > 0)
            return refused(number, Fault{"DETAIL_MODEL_TWICE",
                                         {{"[MODEL]", text(model.identifier)}, {"[FIRST]", QString::number(first)}}});
        if (models.size() == mostModels)
            return Failure{
                FailureCode::TooLarge, name, {"DETAIL_MORE_MODELS", {{"[COUNT]", QString::number(mostModels)}}}};
        lineOf.insert(identifier, number);
        models.push_back(model);
    }
    if (models.empty())
        return Failure{FailureCode::MissingContent, name, "DETAIL_NO_MODEL"};
    return ModelList(bytes, std::move(models));
}

bool areNewestFirst(std::span<const DeviceModel> models)
{
    for (std::size_t index = 1; index < models.size(); ++index) {
        const DeviceModel &before = models[index - 1];
        const DeviceModel &model = models[index];
        const bool sameFamily = familyOf(before) == familyOf(model);
        if (familyOf(before) > familyOf(model) || (sameFamily && before.released < model.released))
            return false;
    }
    return true;
}

} // namespace lumora
