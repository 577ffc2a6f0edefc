// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColors.h"

#include <QAbstractListModel>

namespace lumora
{

/// A row of named colours for a list of swatches.
class SwatchModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setColors(std::vector<NamedColor> colors);
    const NamedColor &at(const QModelIndex &index) const { return m_colors[static_cast<std::size_t>(index.row())]; }
    /// The first swatch of the colour's text, an invalid index where there is none.
    QModelIndex indexOf(const RgbaColor &color) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    /// Name and code as tool tip and for screen readers; nothing to display, since the swatch is painted.
    QVariant data(const QModelIndex &index, int role) const override;

private:
    std::vector<NamedColor> m_colors;
};

} // namespace lumora
