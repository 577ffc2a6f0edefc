// SPDX-License-Identifier: MIT
#include "LocalizationName.h"

#include <array>

#include <unicode/uloc.h>

namespace lumora
{

QString localizationName(const QString &identifier)
{
    const QByteArray id = identifier.toUtf8();
    const char *iso639 = ::uloc_getISO3Language(id.constData());
    if (iso639 == nullptr || *iso639 == '\0')
        return identifier;
    std::array<UChar, 512> name = {};
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t length = ::uloc_getDisplayName(id.constData(), ULOC_ENGLISH, name.data(),
                                                      static_cast<std::int32_t>(name.size()), &status);
    if (U_FAILURE(status) || length <= 0)
        return identifier;
    return QString::fromUtf16(name.data(), length);
}

} // namespace lumora
