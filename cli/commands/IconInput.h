// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/OutputPlace.h"
#include "foundation/Result.h"

#include <QImage>
#include <QString>

namespace lumora
{

class Declaration;

/// The arguments of both icon commands.
struct IconArguments
{
    QString source;
    bool example = false;
    OutputPlace place;

    /// Further options of which one may be given in place of the source, or of the folder to write to.
    void declareOn(Declaration &declaration, const char *sourceKey, const QStringList &otherPlaces = {},
                   const QStringList &otherSources = {});
};

/// The source picture: the given file, standard input for "-", or the built-in picture for --example.
Result<QImage> iconSource(const IconArguments &arguments);

} // namespace lumora
