// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"

namespace lumora
{

/// While an object of this class exists, Ctrl+C, `kill` and the end of the session do not end the program at once: the
/// batch checks `isRequested()` between two files, stops there, reports the complete files and ends with `status()`. A
/// second signal of the same kind ends the program at once. Only one object may exist at a time.
class Interruption
{
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

    static bool isRequested();
    /// 128 plus the signal's number, as in shells: 130 for Ctrl+C, 143 for `kill`.
    static ExitStatus status();
    /// The complaint about it; `done` of `total` files are complete. The text has both numbers.
    static Complaint complaint(qsizetype done, qsizetype total, const char *textKey = "CLI_INTERRUPTED");
};

} // namespace lumora
