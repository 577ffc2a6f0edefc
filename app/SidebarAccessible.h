// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// Has screen readers told of the sidebar as a list of tabs one of which is selected. Harmless when called again.
void installSidebarAccessible();

} // namespace lumora
