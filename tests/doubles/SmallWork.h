// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <algorithm>
#include <ctime>

namespace lumora
{

/// What a hostile file may cost before it is refused: two seconds, of the processor, since other tests may run beside
/// this one, and of plain code, since instrumented code is slow.
class SmallWork
{
public:
    bool isSmall() const
    {
        const int factor = std::max(qEnvironmentVariableIntValue("LUMORA_TIME_FACTOR"), 1);
        return std::clock() - m_start < 2 * CLOCKS_PER_SEC * factor;
    }

private:
    std::clock_t m_start = std::clock();
};

} // namespace lumora
