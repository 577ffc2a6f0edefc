// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"

namespace lumora
{

/// While one of these lives, Ctrl+C, `kill` and the end of the session do not end the program at once: the batch asks
/// `isRequested()` between two files, stops there, names what is whole and ends with `status()`. A second signal of the
/// same kind ends it at once. One object at a time.
class Interruption
{
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

    static bool isRequested();
    /// 128 and the signal's number, as shells count: 130 for Ctrl+C, 143 for `kill`.
    static ExitStatus status();
    /// What to say of it; `done` of `total` files are whole.
    static Complaint complaint(qsizetype done, qsizetype total);
};

} // namespace lumora
