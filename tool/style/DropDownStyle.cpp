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

void frameDropDown(QComboBox *box)
{
    box->setStyleSheet(uR"(
        QComboBox { background: palette(base); border: 2px solid palette(window-text); border-radius: 5px;
            padding: 0 10px; }
        QComboBox:focus { border-color: palette(highlight); }
        QComboBox::drop-down { border: 0; width: 28px; }
        QComboBox::down-arrow { image: url(:/images/dropdown_arrow.svg); width: 12px; height: 12px; }
    )"_s);
}

} // namespace lumora
