// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

class AppDelegate;
class ToolViewController;

/// Connects what one tool asks of another, since no tool knows another: the icons that a package lacks, and the models
/// on which it runs.
void connectHandoffs(AppDelegate &app, ToolViewController &controller);

} // namespace lumora
