// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/OutputPlace.h"
#include "cli/console/Console.h"

#include <QStringList>

#include <optional>

namespace lumora
{

class Declaration;

/// The options for placeholders with a look of the user's choice, and for the check of real screenshots.
struct LabeledPlaceholdersRequest
{
    QStringList sets;  ///< of stores and of classic screens
    QStringList sizes; ///< lists such as "1200x600 800x800@2x"
    QString text;
    QString foreground;
    QString background;
    QString format;
    std::optional<int> quality;
    QString checkedFolder; ///< the folder of screenshots to check; empty for none

    void declareOn(Declaration &declaration);
    /// Whether the request needs more than the gray pictures.
    bool isMeant() const;
};

/// The names of today's sets.
QStringList storeSetNames();

/// Writes the pictures.
ExitStatus writeLabeledPlaceholders(Console &console, const LabeledPlaceholdersRequest &request,
                                    const OutputPlace &place);

/// Checks the pictures in a folder by the stores' rules. Returns Refused if any has an error.
ExitStatus checkScreenshots(Console &console, const LabeledPlaceholdersRequest &request);

} // namespace lumora
