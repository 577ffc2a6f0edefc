// SPDX-License-Identifier: MIT
#pragma once

class QColor;
class QTreeView;

namespace lumora
{

/// The look of a table or tree: a plain header whose titles begin above the texts of their columns, a rounded frame.
void styleTable(QTreeView *table, const QColor &highlight);

} // namespace lumora
