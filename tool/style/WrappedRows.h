// SPDX-License-Identifier: MIT
#pragma once

class QTreeView;

namespace lumora
{

/// Breaks the texts of a tree of one column into as many lines as its width needs, instead of cutting them off.
void wrapRows(QTreeView *tree);

} // namespace lumora
