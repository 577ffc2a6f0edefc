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

/// The projects whose marks are in the folder or, if there are none, up to two levels below it. A part of another
/// project in the same folder, such as the Xcode project of a Flutter project, is not listed.
QList<RecognizedProject> recognizeProjects(const QString &root);

/// The marks of all kinds of projects, one line for each kind.
QStringList projectMarks();

} // namespace lumora
