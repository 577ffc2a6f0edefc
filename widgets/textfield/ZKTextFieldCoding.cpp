// SPDX-License-Identifier: MIT
// Text fields to and from an archive of plain values. Part of the kit's public face: only the tests use it.
#include "ZKTextField.h"

#include <array>

namespace lumora
{

namespace
{

constexpr std::array archivedProperties{"placeholderString", "backgroundColor",   "drawsBackground", "drawsBorder",
                                        "hasHoverCursor",    "shouldClipContent", "shouldShowFocus", "editable",
                                        "selectable",        "continuous",        "secure"};
constexpr const char *stringKey = "string";

} // namespace

QVariantMap ZKTextField::encodeWithCoder() const
{
    QVariantMap archive;
    for (const char *name : archivedProperties)
        archive.insert(QLatin1String(name), property(name));
    if (!isSecure())
        archive.insert(QLatin1String(stringKey), string());
    return archive;
}

void ZKTextField::initWithCoder(const QVariantMap &archive)
{
    for (const char *name : archivedProperties) {
        const auto value = archive.constFind(QLatin1String(name));
        if (value != archive.cend())
            setProperty(name, *value);
    }
    setString(archive.value(QLatin1String(stringKey)).toString());
}

} // namespace lumora
