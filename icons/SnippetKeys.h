// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// The platforms of the code snippets, by the tag of their entry in the drop-down list.
enum class SnippetPlatform : int { Ios = 0, Mac = 1, Android = 2, WebTouch = 3, Favicon = 4 };

/// The key of the snippet's text. For iOS it depends on the chosen device families; choosing neither counts as both.
const char *snippetKey(SnippetPlatform platform, bool iPhoneChosen, bool iPadChosen);

} // namespace lumora
