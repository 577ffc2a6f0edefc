// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <span>

namespace lumora
{

/// One member of a Mac icon file.
struct IcnsMember
{
    const char *type; ///< four letters
    QByteArray content;
};

/// The Mac icon file of these members, in this order: "icns" and the file's length, then for each member its type, its
/// length and its bytes.
QByteArray icnsFile(std::span<const IcnsMember> members);

} // namespace lumora
