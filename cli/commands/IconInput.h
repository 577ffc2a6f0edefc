// SPDX-License-Identifier: MIT
#pragma once

#include "cli/arguments/OutputPlace.h"
#include "foundation/Result.h"

#include <QImage>
#include <QString>

namespace lumora
{

class Declaration;

/// The arguments that both icon commands take.
struct IconArguments
{
    QString source;
    bool example = false;
    OutputPlace place;

    void declareOn(Declaration &declaration, const QStringList &otherPlaces = {});
};

/// The picture to make icons from: the named file, standard input for "-", the built-in one for --example.
Result<QImage> iconSource(const IconArguments &arguments);

} // namespace lumora
