// SPDX-License-Identifier: MIT
#pragma once

#include "placeholders/today/SizeList.h"

#include <QAbstractButton>

#include <vector>

namespace lumora
{

/// A set of placeholders to choose: its name, the number of its pictures and the shapes of some. It is ticked like a
/// box.
class SetTile final : public QAbstractButton
{
    Q_OBJECT

public:
    SetTile(const QString &name, const std::vector<ListedSize> &sizes, QWidget *parent = nullptr);

    const std::vector<ListedSize> &sizes() const { return m_sizes; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::vector<ListedSize> m_sizes;
};

} // namespace lumora
