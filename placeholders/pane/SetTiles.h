// SPDX-License-Identifier: MIT
#pragma once

#include "placeholders/today/SizeList.h"

#include <QWidget>

#include <vector>

class QGridLayout;

namespace lumora
{

class SetTile;

/// The sets of placeholders, one tile each: those of the stores, and those that the user keeps while the program runs.
class SetTiles final : public QWidget
{
    Q_OBJECT

public:
    explicit SetTiles(QWidget *parent = nullptr);

    /// Adds a set of the user's own, ticked.
    void addOwn(const std::vector<ListedSize> &sizes);
    const std::vector<SetTile *> &tiles() const { return m_tiles; }
    /// The sizes of all ticked sets, no size twice.
    std::vector<ListedSize> chosen() const;

signals:
    void changed();

private:
    SetTile *add(const QString &name, const std::vector<ListedSize> &sizes);

    QGridLayout *m_grid; ///< owned by this view
    std::vector<SetTile *> m_tiles;
};

/// Adds the sizes that are not there yet.
void addSizes(std::vector<ListedSize> &all, const std::vector<ListedSize> &more);

} // namespace lumora
