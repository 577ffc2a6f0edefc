// SPDX-License-Identifier: MIT
#pragma once

#include "PackageReview.h"
#include "ReaderProcess.h"

#include <variant>

namespace lumora
{

/// Reviews the package in a process of its own, as `readInProcess` does.
std::variant<PackageReview, ReaderEnd> reviewInProcess(const ReaderOrder &order, const std::stop_token &stop,
                                                       const ReaderProgress &progress);

} // namespace lumora
