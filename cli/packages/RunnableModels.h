// SPDX-License-Identifier: MIT
#pragma once

#include "devices/today/ModelGroup.h"
#include "validator/rules/PackageContents.h"

#include <QJsonArray>
#include <QStringList>

namespace lumora
{

/// The demands of the app on a model: the oldest system, the capabilities that the list of models knows, and an iPad
/// where the app is for nothing else. An app for the iPhone alone runs on every iPad, too.
ModelFilter demandsOnModels(const PackageContents &contents);

/// The models that run the app, a line for each family, then the others by their reasons.
QStringList runnableModelLines(const ModelFilter &filter);

/// Every model, whether it fits and the reasons why not, for scripts.
QJsonArray runnableModelsJson(const ModelFilter &filter);

} // namespace lumora
