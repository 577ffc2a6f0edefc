// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/OutputPlace.h"
#include "cli/console/Console.h"

#include <QStringList>

#include <optional>

namespace lumora
{

class Declaration;

/// The request for pictures in every density.
struct DensityScalingRequest
{
    QString layout;
    QString from;
    QStringList toScales;
    QString format;
    std::optional<int> quality;

    void declareOn(Declaration &declaration);
    bool isMeant() const;
};

/// Plans the missing densities of the pictures that the paths name, and writes them unless it is a dry run: beside
/// their sources, or in the same sub-folders of the given folder.
ExitStatus scaleToDensities(Console &console, const QStringList &sources, const DensityScalingRequest &request,
                            const OutputPlace &place, bool overwrite, bool dryRun);

} // namespace lumora
