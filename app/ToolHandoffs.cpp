// SPDX-License-Identifier: MIT
#include "ToolHandoffs.h"

#include "AppDelegate.h"
#include "devices/DeviceViewController.h"
#include "foundation/ToolFacts.h"
#include "icons/IconsViewController.h"
#include "validator/ValidaterViewController.h"

namespace lumora
{

namespace
{

/// Brings the tool into view.
template <typename Controller> Controller &shownTool(AppDelegate &app, ToolIndex tool)
{
    app.showTool(QString::fromLatin1(factsOf(tool).name));
    app.updateViewForIndex();
    return static_cast<Controller &>(*app.controller(static_cast<std::size_t>(tool)));
}

} // namespace

void connectHandoffs(AppDelegate &app, ToolViewController &controller)
{
    const auto *validator = qobject_cast<ValidaterViewController *>(&controller);
    if (validator == nullptr)
        return;
    QObject::connect(validator, &ValidaterViewController::iconsWanted, &app, [&app](const QString &picture) {
        auto &icons = shownTool<IconsViewController>(app, ToolIndex::Icons);
        if (!picture.isEmpty())
            icons.createIconFromURL(picture);
    });
    QObject::connect(validator, &ValidaterViewController::modelsWanted, &app, [&app](const DeviceDemands &demands) {
        shownTool<DeviceViewController>(app, ToolIndex::Devices)
            .showModels(filterOf(demands.minimumSystem, demands.padOnly, demands.capabilities));
    });
}

} // namespace lumora
