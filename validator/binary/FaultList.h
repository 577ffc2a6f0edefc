// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <algorithm>

namespace lumora
{

/// Adds the fault to a list that holds each once, in the order of their enumeration.
template <typename Fault> void addFault(QList<Fault> &faults, Fault fault)
{
    const auto place = std::ranges::lower_bound(faults, fault);
    if (place == faults.cend() || *place != fault)
        faults.insert(place, fault);
}

} // namespace lumora
