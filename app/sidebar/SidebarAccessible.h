// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// Presents the sidebar to screen readers as a list of tabs, one of which is selected. Harmless when called again.
void installSidebarAccessible();

} // namespace lumora
