// SPDX-License-Identifier: MIT
#pragma once

#include "devices/today/ModelLayout.h"
#include "widgets/style/EasedAnimation.h"

#include <QScrollArea>

#include <span>
#include <vector>

class QLabel;

namespace lumora
{

class ModelTile;

/// Every model as a tile, by family, the newest first. What falls out of the filter fades. Tab reaches one tile, arrow
/// keys, Home and End go on from it.
class ModelTiles final : public QScrollArea
{
    Q_OBJECT

public:
    /// The opacity of a model that falls out.
    static constexpr float fadedAlpha = 0.3F;
    /// Between the tiles and the scroll bar, in points.
    static constexpr int endMargin = 4;

    /// The models live as long as the view.
    explicit ModelTiles(std::span<const DeviceModel> models, QWidget *parent = nullptr);

    const std::vector<ModelGroup> &groups() const { return m_groups; }
    const std::vector<ModelTile *> &tiles() const { return m_tiles; }
    /// Judges every model and fades those that fall out. Scrolls to the first one that fits if none is in view, and
    /// after a new search in any case. Returns the number of tiles that fit.
    int filter(const ModelFilter &filter);
    const std::vector<std::size_t> &compared() const { return m_compared; }
    void setCompared(const std::vector<std::size_t> &compared);
    /// Gives the keyboard to the tile.
    void focusTile(std::size_t index);

signals:
    void opened(std::size_t index);
    void comparedChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void scrollToFitting(bool isNewSearch);
    void move(std::size_t from, int key);
    std::size_t neighborInRow(std::size_t from, int direction) const;

    std::vector<ModelGroup> m_groups;
    QWidget *m_content;
    std::vector<ModelTile *> m_tiles;
    std::vector<QLabel *> m_headings;
    std::vector<std::size_t> m_compared;
    std::vector<float> m_alphaBefore;
    QString m_search;
    std::size_t m_current = 0;
    EasedAnimation m_fade;
};

} // namespace lumora
