// SPDX-License-Identifier: MIT
#include "TableStyle.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QHeaderView>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int textSize = 13;

} // namespace

void styleTable(QTreeView *table, const QColor &highlight)
{
    // The padding of rows does not move their text, so the whole content is inset; 3 points are the rows' own margin.
    table->setStyleSheet(u"QTreeView { border: 1px solid palette(mid); border-radius: 4px; padding: 2px 6px; }"
                         "QTreeView::item { padding: 4px 2px; }"
                         "QHeaderView { background: palette(base); }"
                         "QHeaderView::section { background: palette(base); border: 0; padding: 6px 3px; }"_s);
    table->setFont(latoRegular(textSize));
    table->header()->setFont(latoBold(textSize));
    table->header()->setSectionsMovable(false);
    table->setTextElideMode(Qt::ElideMiddle);
    QPalette colors = table->palette();
    colors.setColor(QPalette::Text, palette::chromeText);
    colors.setColor(QPalette::Highlight, highlight);
    table->setPalette(colors);
}

} // namespace lumora
