// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>

#include <memory>

namespace lumora
{

/// The application of a command that draws text into pictures: it has fonts, needs no screen, and leaves no file.
/// Changes the environment of the process. `argc` must outlive the application.
std::unique_ptr<QGuiApplication> makeScreenlessApplication(int &argc, char **argv);

} // namespace lumora
