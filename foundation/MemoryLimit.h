// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <QString>

#include <new>

namespace lumora
{

/// The failure of work that memory does not suffice for.
inline Failure outOfMemory(const QString &subject)
{
    return {FailureCode::TooLarge, subject, "DETAIL_NO_MEMORY"};
}

/// Does the work, which returns a `Result`; `outOfMemory` if an allocation in it fails. For work whose memory grows
/// with the input, such as a picture.
template <typename Work> auto withinMemory(const QString &subject, const Work &work) -> decltype(work())
{
    try {
        return work();
    } catch (const std::bad_alloc &) {
        return outOfMemory(subject);
    }
}

} // namespace lumora
