// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QString>

#include <string>

namespace lumora
{

/// The absolute path of the folder that an argument names to be written into, which has to exist. An empty argument is
/// refused: it would stand for the working folder.
Result<QString> existingFolder(const std::string &argument);

} // namespace lumora
