// SPDX-License-Identifier: MIT
#include "ModelTiles.h"

#include "ModelTexts.h"
#include "ModelTile.h"
#include "devices/today/ModelChoices.h"
#include "tool/style/LabelStyle.h"
#include "widgets/style/AccessibleRole.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QLabel>
#include <QScrollBar>

#include <algorithm>
#include <cstdlib>

namespace lumora
{

namespace
{

constexpr int headingSize = 15;
constexpr int headingCount = 3;

float alphaOf(const ModelTile &tile)
{
    return tile.verdict().fits ? 1.0F : ModelTiles::fadedAlpha;
}

/// Tiles as wide as the row leaves room for.
ModelTileMetrics metricsFor(int width)
{
    ModelTileMetrics metrics;
    metrics.endMargin = ModelTiles::endMargin;
    const int inner = width - metrics.margin - metrics.endMargin;
    const int columns = std::max((inner + metrics.gap) / (metrics.tile.width() + metrics.gap), 1);
    metrics.tile.setWidth((inner + metrics.gap) / columns - metrics.gap);
    return metrics;
}

} // namespace

ModelTiles::ModelTiles(std::span<const DeviceModel> models, QWidget *parent)
    : QScrollArea(parent), m_groups(groupedModels(models)), m_content(new QWidget)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setWidget(m_content);
    // An opaque content is moved when it is scrolled, not painted again.
    QPalette colors = m_content->palette();
    colors.setColor(QPalette::Window, palette::panel);
    m_content->setPalette(colors);
    m_content->setAutoFillBackground(true);
    viewport()->setPalette(colors);
    setAccessibleRole(m_content, QAccessible::Grouping);
    m_content->setAccessibleName(qtTrId("DEVICES_MODELS"));
    for (int index = 0; index < headingCount; ++index) {
        auto *heading = new QLabel(m_content);
        styleLabel(heading, latoBold(headingSize), palette::devices);
        m_headings.push_back(heading);
    }
    for (std::size_t index = 0; index < m_groups.size(); ++index) {
        auto *tile = new ModelTile(m_groups[index], m_content);
        m_tiles.push_back(tile);
        connect(tile, &ModelTile::clicked, this, [this, index] { emit opened(index); });
        connect(tile, &ModelTile::moved, this, [this, index](int key) { move(index, key); });
        connect(tile, &ModelTile::comparisonToggled, this, [this, index] {
            setCompared(toggledChoice(m_compared, index));
            emit comparedChanged();
        });
    }
    if (!m_tiles.empty())
        m_tiles.front()->setFocusPolicy(Qt::StrongFocus);
    connect(&m_fade, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        for (std::size_t index = 0; index < m_tiles.size(); ++index) {
            const float before = m_alphaBefore[index];
            m_tiles[index]->setAlpha(before + (alphaOf(*m_tiles[index]) - before) * value.toFloat());
        }
    });
}

int ModelTiles::filter(const ModelFilter &filter)
{
    m_fade.stop();
    m_alphaBefore.clear();
    int fitting = 0;
    for (std::size_t index = 0; index < m_tiles.size(); ++index) {
        m_alphaBefore.push_back(m_tiles[index]->alpha());
        m_tiles[index]->setVerdict(verdictOn(m_groups[index], filter));
        fitting += m_tiles[index]->verdict().fits ? 1 : 0;
    }
    if (isVisible()) {
        m_fade.run(0.0F, 1.0F);
    } else {
        for (ModelTile *tile : m_tiles)
            tile->setAlpha(alphaOf(*tile));
    }
    const bool isNewSearch = !filter.search.isEmpty() && filter.search != m_search;
    m_search = filter.search;
    scrollToFitting(isNewSearch);
    return fitting;
}

void ModelTiles::scrollToFitting(bool isNewSearch)
{
    const QRect view(0, verticalScrollBar()->value(), viewport()->width(), viewport()->height());
    const auto fits = [](const ModelTile *tile) { return tile->verdict().fits; };
    const auto first = std::ranges::find_if(m_tiles, fits);
    const bool isSeen = std::ranges::any_of(
        m_tiles, [&](const ModelTile *tile) { return fits(tile) && view.intersects(tile->geometry()); });
    if (first == m_tiles.end())
        return;
    if (!isSeen || (isNewSearch && !view.contains((*first)->geometry())))
        verticalScrollBar()->setValue((*first)->y() - view.height() / 3);
}

void ModelTiles::setCompared(const std::vector<std::size_t> &compared)
{
    m_compared = compared;
    for (std::size_t index = 0; index < m_tiles.size(); ++index)
        m_tiles[index]->setCompared(std::ranges::find(compared, index) != compared.end());
}

void ModelTiles::focusTile(std::size_t index)
{
    m_tiles[m_current]->setFocusPolicy(Qt::ClickFocus);
    m_current = index;
    ModelTile *tile = m_tiles[index];
    tile->setFocusPolicy(Qt::StrongFocus);
    tile->setFocus(Qt::TabFocusReason);
    ensureWidgetVisible(tile);
}

void ModelTiles::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    layOut();
}

void ModelTiles::changeEvent(QEvent *event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
}

void ModelTiles::layOut()
{
    const int width = viewport()->width();
    const ModelTileMetrics metrics = metricsFor(width);
    std::vector<int> heights;
    heights.reserve(m_tiles.size());
    for (const ModelTile *tile : m_tiles)
        heights.push_back(tile->heightFor(metrics.tile.width()));
    const ModelLayout layout = layOutModels(m_groups, width, metrics, heights);
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const auto placed = [mirrored, width](QRect place) {
        if (mirrored)
            place.moveLeft(width - place.x() - place.width());
        return place;
    };
    m_content->resize(width, layout.height);
    for (std::size_t index = 0; index < m_tiles.size(); ++index)
        m_tiles[index]->setGeometry(placed(layout.tiles[index]));
    for (std::size_t index = 0; index < m_headings.size(); ++index) {
        QLabel *heading = m_headings[index];
        heading->setVisible(index < layout.headings.size());
        if (index >= layout.headings.size())
            continue;
        const std::string_view name = familyName(layout.headings[index].family);
        heading->setText(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
        heading->setGeometry(placed(layout.headings[index].place));
    }
}

void ModelTiles::move(std::size_t from, int key)
{
    const std::size_t last = m_tiles.size() - 1;
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const int forward = mirrored ? Qt::Key_Left : Qt::Key_Right;
    std::size_t next = from;
    if (key == Qt::Key_Home)
        next = 0;
    else if (key == Qt::Key_End)
        next = last;
    else if (key == Qt::Key_Up || key == Qt::Key_Down)
        next = neighborInRow(from, key == Qt::Key_Down ? 1 : -1);
    else if (key == forward)
        next = std::min(from + 1, last);
    else
        next = from == 0 ? 0 : from - 1;
    focusTile(next);
}

/// The tile above or below: of the next row, the one nearest in x.
std::size_t ModelTiles::neighborInRow(std::size_t from, int direction) const
{
    const QRect start = m_tiles[from]->geometry();
    std::size_t found = from;
    for (std::size_t index = 0; index < m_tiles.size(); ++index) {
        const QRect place = m_tiles[index]->geometry();
        const int away = (place.y() - start.y()) * direction;
        const int foundAway = (m_tiles[found]->y() - start.y()) * direction;
        if (away <= 0)
            continue;
        const bool nearerRow = found == from || away < foundAway;
        const bool nearerInRow =
            away == foundAway && std::abs(place.x() - start.x()) < std::abs(m_tiles[found]->x() - start.x());
        if (nearerRow || nearerInRow)
            found = index;
    }
    return found;
}

} // namespace lumora
