// SPDX-License-Identifier: MIT
#include "SnippetKeys.h"

namespace lumora
{

const char *snippetKey(SnippetPlatform platform, bool iPhoneChosen, bool iPadChosen)
{
    switch (platform) {
    case SnippetPlatform::Ios:
        if (iPhoneChosen == iPadChosen)
            return "SNIPPET_IOS_UNIVERSAL";
        return iPhoneChosen ? "SNIPPET_IOS" : "SNIPPET_IOS_IPAD";
    case SnippetPlatform::Mac:
        return "SNIPPET_MACOSX";
    case SnippetPlatform::Android:
        return "SNIPPET_ANDROID";
    case SnippetPlatform::WebTouch:
        return "SNIPPET_WEB_TOUCH";
    case SnippetPlatform::Favicon:
        return "SNIPPET_FAVICON";
    }
    return "";
}

} // namespace lumora
