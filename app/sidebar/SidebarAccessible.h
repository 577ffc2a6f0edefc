// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// Presents the sidebar to screen readers as a list of tabs, one of which is selected. Further calls do nothing.
void installSidebarAccessible();

} // namespace lumora
