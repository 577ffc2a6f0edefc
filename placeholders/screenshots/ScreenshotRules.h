// SPDX-License-Identifier: MIT
#pragma once

#include "ScreenshotFacts.h"

#include <QLatin1StringView>

#include <set>
#include <span>
#include <vector>

namespace lumora
{

enum class ScreenshotStore { AppStore, Play };

/// The store refuses an error and probably a warning; a note is a disadvantage.
enum class ScreenshotSeverity { Error, Warning, Note };

/// The key of the text that names the severity.
const char *severityKey(ScreenshotSeverity severity);

/// One rule for screenshots.
struct ScreenshotRule
{
    QLatin1StringView id;
    ScreenshotSeverity severity = {};
    const char *titleKey = nullptr; ///< of the texts
    const char *fixKey = nullptr;
};

std::span<const ScreenshotRule> screenshotRules();

/// A rule that is broken.
struct ScreenshotFinding
{
    const ScreenshotRule *rule = nullptr;
    QString path;           ///< of the picture or of its folder
    FailureDetail evidence; ///< the finding: "1081 x 1920 pixels"
};

/// The faults of the pictures, sorted by path, then those of folders. A picture in one of Play's folders
/// (phoneScreenshots and the like, featureGraphic) must follow Play's rules; any other those of the given stores.
/// Without given stores it must follow the rules of at least one.
std::vector<ScreenshotFinding> screenshotFindings(const std::vector<ScreenshotFacts> &screenshots,
                                                  const std::set<ScreenshotStore> &stores = {});

} // namespace lumora
