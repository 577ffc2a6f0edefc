// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"

#include <QString>
#include <QStringList>

namespace lumora
{

class Declaration;

/// The request for today's device list.
struct DeviceModelsRequest
{
    bool today = false;
    QString ios;
    QStringList families;
    QStringList chips;
    QStringList capabilities;
    QStringList screens;
    QStringList biometries;
    QStringList features;
    QString search;
    QStringList models; ///< identifiers or names, each to be shown as a card
    bool csv = false;
    QString dataFile;

    /// Declares all options except --ios.
    void declareOn(Declaration &declaration);
    /// Whether an option is given that only today's list has.
    bool isMeant() const;
};

/// Prints the models that match, or the cards of the named ones.
ExitStatus printDeviceModels(Console &console, const DeviceModelsRequest &request);

} // namespace lumora
