// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"

#include <QString>
#include <QStringList>

namespace lumora
{

class Declaration;

/// What is asked of today's device list.
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

    /// Declares all of them but --ios.
    void declareOn(Declaration &declaration);
    /// Whether any of them is given that only today's list knows.
    bool isMeant() const;
};

/// Prints the models that fit, or the cards of those that are named.
ExitStatus printDeviceModels(Console &console, const DeviceModelsRequest &request);

} // namespace lumora
