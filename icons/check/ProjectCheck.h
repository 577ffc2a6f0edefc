// SPDX-License-Identifier: MIT
#pragma once

#include "IconFinding.h"

#include <QString>

namespace lumora
{

struct FilePlan;

/// Reads back the files of a plan that were written into a project: each picture has its planned size and
/// transparency, each icon file can be read, and the catalogues and Android resources that hold them keep the
/// platform's rules. Icons of the project that are not in the plan are not judged.
IconCheck checkProject(const QString &root, const FilePlan &plan);

} // namespace lumora
