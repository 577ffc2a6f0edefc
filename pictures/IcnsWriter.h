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

/// The Mac icon file of these members, in this order: each led by its type and its length, both together by "icns".
QByteArray icnsFile(std::span<const IcnsMember> members);

} // namespace lumora
