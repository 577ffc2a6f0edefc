// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace lumora
{

class Console;
enum class ExitStatus : int;

/// What a command does once its arguments are read.
using CommandBody = std::function<ExitStatus(Console &)>;

} // namespace lumora
