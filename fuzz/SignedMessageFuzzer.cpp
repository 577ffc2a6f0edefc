// SPDX-License-Identifier: MIT
// Any bytes as a provisioning profile: the message opened and its content turned into text.
#include "validator/ProfileDecoder.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray message(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QByteArray content = lumora::signedMessageContent(message);
    if (content.size() > message.size() || lumora::asciiText(content).size() != content.size())
        std::abort();
    return 0;
}
