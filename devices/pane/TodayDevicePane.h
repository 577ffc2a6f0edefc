// SPDX-License-Identifier: MIT
#pragma once

#include "devices/today/ModelGroup.h"

#include <QWidget>

#include <span>

class QLabel;
class QShortcut;
class QStackedWidget;

namespace lumora
{

class IconButton;
class ModelFilterView;
class ModelTable;
class ModelTiles;

/// The device tool's side of today: the requirements, and beside them every model as a tile, one model's card, or two
/// or three models side by side. Escape returns to the tiles.
class TodayDevicePane final : public QWidget
{
    Q_OBJECT

public:
    /// The models live as long as the pane.
    explicit TodayDevicePane(std::span<const DeviceModel> models, QWidget *parent = nullptr);

    ModelFilterView *filters() const { return m_filters; }
    ModelTiles *tiles() const { return m_tiles; }
    ModelTable *table() const { return m_table; }
    QLabel *countLabel() const { return m_count; }
    IconButton *compareButton() const { return m_compare; }
    IconButton *backButton() const { return m_back; }
    /// Adds the model on the card to the comparison, or takes it out.
    IconButton *markButton() const { return m_mark; }
    bool showsTable() const;

signals:
    void copied(const QString &text);

private:
    void setUpHeader();
    void filter();
    void showCompared();
    void open(const std::vector<std::size_t> &indexes);
    void returnToTiles();

    ModelFilterView *m_filters;
    ModelTiles *m_tiles;
    ModelTable *m_table;
    QStackedWidget *m_pages;
    QLabel *m_count;
    IconButton *m_compare;
    IconButton *m_back;
    IconButton *m_mark;
    QShortcut *m_escape;
    std::size_t m_openedFrom = 0;
};

} // namespace lumora
