// SPDX-License-Identifier: MIT
#include "ModelList.h"

namespace lumora
{

namespace
{

/// One row for each line of models.csv, made and checked while the program is built.
constexpr DeviceModel table[] = {
#include "models.inc"
};

static_assert(std::size(table) > 0);

} // namespace

std::span<const DeviceModel> builtInModels()
{
    return table;
}

} // namespace lumora
