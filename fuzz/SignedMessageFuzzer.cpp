// SPDX-License-Identifier: MIT
// Any bytes as a provisioning profile: the message opened and its content turned into text. OpenSSL, which does most of
// it, is not compiled for the fuzzer and so does not steer it; the mutations know what a message is made of instead.
#include "MessageTree.h"
#include "validator/ProfileDecoder.h"

#include <algorithm>
#include <cstdlib>

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
    return 0;
}
