// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

class Console;
struct LockedPlaces;

/// From here on the process reaches these places and nothing else; a note says what holds it. For commands that read
/// packages, before they read the first of them.
void lockIn(Console &console, const LockedPlaces &places);

} // namespace lumora
