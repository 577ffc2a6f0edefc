// SPDX-License-Identifier: MIT
#include "SwatchModel.h"

#include "color/ColorCode.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

void SwatchModel::setColors(std::vector<NamedColor> colors)
{
    beginResetModel();
    m_colors = std::move(colors);
    endResetModel();
}

QModelIndex SwatchModel::indexOf(const RgbaColor &color) const
{
    const auto found = std::ranges::find_if(m_colors, [&](const NamedColor &named) {
        return stringFromColor(named.color) == stringFromColor(color) && named.color.alpha == color.alpha;
    });
    return found == m_colors.end() ? QModelIndex() : index(static_cast<int>(found - m_colors.begin()));
}

int SwatchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_colors.size());
}

QVariant SwatchModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const NamedColor &named = at(index);
    const QString code = stringFromColor(named.color);
    switch (role) {
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return named.name.isEmpty() ? code : QString(named.name + u", "_s + code);
    default:
        return {};
    }
}

} // namespace lumora
