// SPDX-License-Identifier: MIT
#include "MessageTree.h"

#include <algorithm>
#include <array>
#include <optional>

namespace lumora
{

namespace
{

constexpr std::uint8_t hasParts = 0x20;
constexpr std::uint8_t longTag = 0x1F;
constexpr std::uint8_t more = 0x80;
constexpr int deepest = 60;

/// A position in the bytes from which values are read.
struct Reader
{
    const Bytes &bytes;
    std::size_t at;
    std::size_t end;

    bool atEndMark() const { return end - at >= 2 && bytes[at] == 0 && bytes[at + 1] == 0; }
};

std::optional<std::vector<MessageValue>> valuesIn(Reader &reader, bool untilMark, int depth);

std::optional<Bytes> tagAt(Reader &reader)
{
    Bytes tag;
    do {
        if (reader.at == reader.end)
            return std::nullopt;
        tag.push_back(reader.bytes[reader.at++]);
    } while ((tag.size() == 1 && (tag[0] & longTag) == longTag) || (tag.size() > 1 && (tag.back() & more) != 0));
    return tag;
}

std::optional<MessageValue> valueAt(Reader &reader, int depth)
{
    const auto tag = tagAt(reader);
    if (!tag || reader.at == reader.end)
        return std::nullopt;
    MessageValue value{*tag, false, {}, {}};
    std::size_t length = reader.bytes[reader.at++];
    if (length == more) {
        value.indefinite = true;
        auto parts = valuesIn(reader, true, depth + 1);
        if (!parts)
            return std::nullopt;
        value.parts = std::move(*parts);
        return value;
    }
    if (length > more) {
        std::size_t digits = length & 0x7F;
        for (length = 0; digits > 0 && reader.at < reader.end; --digits)
            length = length << 8 | reader.bytes[reader.at++];
    }
    if (length > reader.end - reader.at)
        return std::nullopt;
    Reader inside{reader.bytes, reader.at, reader.at + length};
    reader.at += length;
    value.contents.assign(reader.bytes.begin() + static_cast<std::ptrdiff_t>(inside.at),
                          reader.bytes.begin() + static_cast<std::ptrdiff_t>(inside.end));
    if ((value.tag[0] & hasParts) != 0) {
        if (auto parts = valuesIn(inside, false, depth + 1)) {
            value.parts = std::move(*parts);
            value.contents.clear();
        }
    }
    return value;
}

std::optional<std::vector<MessageValue>> valuesIn(Reader &reader, bool untilMark, int depth)
{
    if (depth > deepest)
        return std::nullopt;
    std::vector<MessageValue> values;
    while (reader.at < reader.end) {
        if (untilMark && reader.atEndMark()) {
            reader.at += 2;
            return values;
        }
        auto value = valueAt(reader, depth);
        if (!value)
            return std::nullopt;
        values.push_back(std::move(*value));
    }
    if (untilMark)
        return std::nullopt;
    return values;
}

void append(Bytes &out, const MessageValue &value)
{
    out.insert(out.end(), value.tag.begin(), value.tag.end());
    Bytes inside = value.contents;
    for (const MessageValue &part : value.parts)
        append(inside, part);
    if (value.indefinite) {
        out.push_back(more);
    } else if (inside.size() < more) {
        out.push_back(static_cast<std::uint8_t>(inside.size()));
    } else {
        constexpr int digits = 3;
        out.push_back(more | digits);
        for (int digit = digits - 1; digit >= 0; --digit)
            out.push_back(static_cast<std::uint8_t>(inside.size() >> (8 * digit)));
    }
    out.insert(out.end(), inside.begin(), inside.end());
    if (value.indefinite)
        out.insert(out.end(), {0, 0});
}

/// The place of a value: its siblings and its index among them.
struct Place
{
    std::vector<MessageValue> *row;
    std::size_t number;

    MessageValue &value() const { return (*row)[number]; }
};

void collect(std::vector<MessageValue> &row, std::vector<Place> &places)
{
    for (std::size_t number = 0; number < row.size(); ++number) {
        places.push_back({&row, number});
        collect(row[number].parts, places);
    }
}

void cutIntoPieces(MessageValue &value)
{
    const Bytes contents = std::move(value.contents);
    const auto middle = contents.begin() + static_cast<std::ptrdiff_t>(contents.size() / 2);
    value.parts = {{value.tag, false, Bytes(contents.begin(), middle), {}},
                   {value.tag, false, Bytes(middle, contents.end()), {}}};
    value.contents.clear();
    value.tag[0] |= hasParts;
}

} // namespace

std::vector<MessageValue> messageValues(const Bytes &bytes)
{
    Reader reader{bytes, 0, bytes.size()};
    return valuesIn(reader, false, 0).value_or(std::vector<MessageValue>());
}

Bytes messageBytes(const std::vector<MessageValue> &values)
{
    Bytes bytes;
    for (const MessageValue &value : values)
        append(bytes, value);
    return bytes;
}

void mutateOneValue(std::vector<MessageValue> &values, std::minstd_rand &random,
                    std::size_t (*mutateBytes)(std::uint8_t *, std::size_t, std::size_t))
{
    std::vector<Place> places;
    collect(values, places);
    if (places.empty())
        return;
    const Place place = places[random() % places.size()];
    MessageValue &value = place.value();
    const auto position = place.row->begin() + static_cast<std::ptrdiff_t>(place.number);
    switch (random() % 7) {
    case 0:
        place.row->erase(position);
        break;
    case 1:
        place.row->insert(position, MessageValue(value));
        break;
    case 2:
        // A copy first, since one value may contain the other.
        value = MessageValue(places[random() % places.size()].value());
        break;
    case 3:
        value.tag[0] = static_cast<std::uint8_t>(random());
        break;
    case 4:
        value.indefinite = !value.indefinite && (value.tag[0] & hasParts) != 0;
        break;
    case 5:
        if (value.parts.empty())
            cutIntoPieces(value);
        break;
    default: {
        constexpr std::size_t room = 32;
        const std::size_t size = value.contents.size();
        value.contents.resize(size + room);
        value.contents.resize(mutateBytes(value.contents.data(), size, size + room));
    }
    }
}

} // namespace lumora
