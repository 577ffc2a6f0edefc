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

/// An error is refused by the store, a warning is likely to be, a note costs something.
enum class ScreenshotSeverity { Error, Warning, Note };

/// One rule that screenshots are held against.
struct ScreenshotRule
{
    QLatin1StringView id;
    ScreenshotSeverity severity;
    QLatin1StringView title;
    QLatin1StringView fix;
};

std::span<const ScreenshotRule> screenshotRules();

/// A rule that is broken.
struct ScreenshotFinding
{
    const ScreenshotRule *rule = nullptr;
    QString path;     ///< of the picture or of its folder
    QString evidence; ///< what was found: "1081 x 1920 pixels"
};

/// What is wrong with the pictures, in the order of their paths, then what is wrong with a folder of them. A picture in
/// a folder of Play's (phoneScreenshots and the like, featureGraphic) is held against Play's rules; any other against
/// those of the given stores, both where none is given: then it has to be good for one of them.
std::vector<ScreenshotFinding> screenshotFindings(const std::vector<ScreenshotFacts> &screenshots,
                                                  const std::set<ScreenshotStore> &stores = {});

} // namespace lumora
