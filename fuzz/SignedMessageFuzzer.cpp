// SPDX-License-Identifier: MIT
// Any bytes as a provisioning profile: the message opened and its content turned into text. OpenSSL does most of the
// work, but it is not compiled for the fuzzer and so does not guide it. Instead the places in OpenSSL that report
// errors and the structure of the message guide it, and the mutations know the parts of a message.
#include "MessageTree.h"
#include "validator/bundle/ProfileDecoder.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <string_view>

#include <openssl/cms.h>
#include <openssl/err.h>

namespace
{

/// Counters that the fuzzer treats like those of code: it keeps an input that sets a new one.
__attribute__((section("__libfuzzer_extra_counters"))) std::array<std::uint8_t, 4096> counters;

void count(std::size_t what)
{
    std::uint8_t &counter = counters.at(what % counters.size());
    if (counter < 255)
        ++counter;
}

/// The places in OpenSSL that report errors about this message.
void countComplaints(const uint8_t *data, size_t size)
{
    CMS_ContentInfo *message = ::d2i_CMS_ContentInfo(nullptr, &data, static_cast<long>(size));
    if (message != nullptr) {
        count(static_cast<std::size_t>(::OBJ_obj2nid(::CMS_get0_type(message))));
        ::CMS_get0_content(message);
    }
    ::CMS_ContentInfo_free(message);
    const char *file = nullptr;
    int line = 0;
    while (const unsigned long error = ::ERR_get_error_all(&file, &line, nullptr, nullptr, nullptr))
        count(std::hash<std::string_view>()(file) + static_cast<std::size_t>(line) * 31 + error);
}

void countShape(const std::vector<lumora::MessageValue> &values, std::size_t depth)
{
    for (const lumora::MessageValue &value : values) {
        const std::size_t parts = std::min<std::size_t>(value.parts.size(), 7);
        count(depth * 7919 + (parts << 10 | std::size_t{value.indefinite} << 9 | value.tag[0]));
        countShape(value.parts, depth + 1);
    }
}

} // namespace

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t largest);

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t largest, unsigned seed)
{
    std::minstd_rand random(seed + 1);
    constexpr unsigned plainlyOneIn = 4;
    std::vector<lumora::MessageValue> values;
    if (random() % plainlyOneIn != 0)
        values = lumora::messageValues(lumora::Bytes(data, data + size));
    if (values.empty())
        return LLVMFuzzerMutate(data, size, largest);
    lumora::mutateOneValue(values, random, &LLVMFuzzerMutate);
    const lumora::Bytes bytes = lumora::messageBytes(values);
    if (bytes.size() > largest)
        return LLVMFuzzerMutate(data, size, largest);
    std::copy(bytes.begin(), bytes.end(), data);
    return bytes.size();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray message(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QByteArray content = lumora::signedMessageContent(message);
    if (content.size() > message.size() || lumora::asciiText(content).size() != content.size())
        std::abort();
    countComplaints(data, size);
    countShape(lumora::messageValues(lumora::Bytes(data, data + size)), 1);
    return 0;
}
