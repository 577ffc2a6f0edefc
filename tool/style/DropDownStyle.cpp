// SPDX-License-Identifier: MIT
#include "DropDownStyle.h"

#include <QComboBox>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

namespace lumora
{

void styleDropDown(QComboBox *box)
{
    // The platform's own list would use the box's background for its highlighted row, too.
    box->setStyleSheet(box->styleSheet() + uR"(
        QComboBox { combobox-popup: 0; }
        QComboBox QAbstractItemView { background: palette(base); color: palette(text); border: 1px solid palette(mid);
            outline: 0; selection-background-color: palette(highlight); selection-color: palette(highlighted-text); }
        QComboBox QAbstractItemView::item { min-height: 26px; padding: 0 8px; }
    )"_s);
    // The box's own delegate ignores the style of the rows.
    box->setItemDelegate(new QStyledItemDelegate(box));
}

} // namespace lumora
