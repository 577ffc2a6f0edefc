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
    QStringList sizes; ///< each a list such as "1200x600 800x800@2x"
    QString text;
    QString foreground;
    QString background;
    QString format;
    std::optional<int> quality;
    QString checkedFolder; ///< of screenshots; empty where none are to be checked

    void declareOn(Declaration &declaration);
    /// Whether anything is asked for that the grey pictures know nothing of.
    bool isMeant() const;
};

/// The names of the sets of today.
QStringList storeSetNames();

/// Writes the pictures.
ExitStatus writeLabeledPlaceholders(Console &console, const LabeledPlaceholdersRequest &request,
                                    const OutputPlace &place);

/// Holds the pictures in a folder against what stores take. Refused where any is in error.
ExitStatus checkScreenshots(Console &console, const LabeledPlaceholdersRequest &request);

} // namespace lumora
