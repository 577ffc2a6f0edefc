// SPDX-License-Identifier: MIT
#pragma once

#include "PackageReview.h"

#include <QByteArray>

#include <optional>

namespace lumora
{

/// The review on its way from one process to the other.
QByteArray bytesOf(const PackageReview &review);

/// The review in the bytes. They may come from a process that a hostile package has taken over: nothing when they are
/// no review, and a part that makes no sense is left out.
std::optional<PackageReview> reviewIn(const QByteArray &bytes);

} // namespace lumora
