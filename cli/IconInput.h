// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <CLI/App.hpp>

#include <QImage>
#include <QString>

#include <string>

namespace lumora
{

/// The arguments that both icon commands take.
struct IconArguments
{
    std::string source;
    std::string destination;
    bool json = false;

    void declareOn(CLI::App &subcommand);
};

/// The picture to make icons from: the named file, standard input for "-", the built-in one where none is named.
Result<QImage> iconSource(const IconArguments &arguments);

} // namespace lumora
