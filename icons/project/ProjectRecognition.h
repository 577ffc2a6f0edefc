// SPDX-License-Identifier: MIT
#pragma once

#include "ProjectKind.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace lumora
{

/// A project in a tree.
struct RecognizedProject
{
    ProjectKind kind = ProjectKind::Flutter;
    QString folder; ///< from the tree's root; empty for the root itself

    bool operator==(const RecognizedProject &) const = default;
};

/// The projects whose marks are in the folder; where there are none, those in the folders up to two levels below it.
/// What belongs to another project in the same folder, such as its own Xcode project, is none of its own.
QList<RecognizedProject> recognizeProjects(const QString &root);

/// What was looked for, one line for each kind.
QStringList projectMarks();

} // namespace lumora
