// SPDX-License-Identifier: MIT
#include "SetTiles.h"

#include "SetTile.h"
#include "placeholders/today/StoreSizes.h"

#include <QGridLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int columns = 3;
constexpr int gap = 8;
constexpr int mostNamedSizes = 2;

/// In the order of `storeSets`.
QStringList setNames()
{
    return {qtTrId("PLACEHOLDER_SET_APP_STORE"), qtTrId("PLACEHOLDER_SET_PLAY"),  qtTrId("PLACEHOLDER_SET_FEATURE"),
            qtTrId("PLACEHOLDER_SET_TV"),        qtTrId("PLACEHOLDER_SET_WATCH"), qtTrId("PLACEHOLDER_SET_SOCIAL"),
            qtTrId("PLACEHOLDER_SET_LAUNCH")};
}

QString nameOf(const std::vector<ListedSize> &sizes)
{
    QStringList names;
    for (const ListedSize &size : sizes) {
        if (names.size() == mostNamedSizes)
            return names.join(u", "_s) + u" …"_s;
        names << sizeText(size);
    }
    return names.join(u", "_s);
}

} // namespace

void addSizes(std::vector<ListedSize> &all, const std::vector<ListedSize> &more)
{
    for (const ListedSize &size : more) {
        if (std::ranges::find(all, size) == all.end())
            all.push_back(size);
    }
}

SetTiles::SetTiles(QWidget *parent) : QWidget(parent), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins({});
    m_grid->setSpacing(gap);
    for (int column = 0; column < columns; ++column)
        m_grid->setColumnStretch(column, 1);
    const QStringList names = setNames();
    for (qsizetype index = 0; index < names.size(); ++index) {
        std::vector<ListedSize> sizes;
        for (const StoreSize &one : picturesOf(storeSets()[static_cast<std::size_t>(index)]))
            addSizes(sizes, {{one.size, 1}});
        add(names[index], sizes);
    }
}

SetTile *SetTiles::add(const QString &name, const std::vector<ListedSize> &sizes)
{
    auto *tile = new SetTile(name, sizes, this);
    const auto place = static_cast<int>(m_tiles.size());
    m_grid->setRowStretch(place / columns, 0);
    m_grid->addWidget(tile, place / columns, place % columns);
    m_grid->setRowStretch(place / columns + 1, 1);
    m_tiles.push_back(tile);
    connect(tile, &SetTile::toggled, this, &SetTiles::changed);
    return tile;
}

void SetTiles::addOwn(const std::vector<ListedSize> &sizes)
{
    for (SetTile *tile : m_tiles) {
        if (tile->sizes() == sizes) {
            tile->setChecked(true);
            return;
        }
    }
    add(nameOf(sizes), sizes)->setChecked(true);
}

std::vector<ListedSize> SetTiles::chosen() const
{
    std::vector<ListedSize> sizes;
    for (const SetTile *tile : m_tiles) {
        if (tile->isChecked())
            addSizes(sizes, tile->sizes());
    }
    return sizes;
}

} // namespace lumora
