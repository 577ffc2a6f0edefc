// SPDX-License-Identifier: MIT
#pragma once

#include "color/picking/NamedColors.h"

#include <QAbstractListModel>
#include <QListView>

namespace lumora
{

/// A model of named colors for a list of swatches.
class SwatchModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setColors(std::vector<NamedColor> colors);
    const NamedColor &at(const QModelIndex &index) const { return m_colors[static_cast<std::size_t>(index.row())]; }
    /// The first swatch with the color's text; an invalid index if there is none.
    QModelIndex indexOf(const RgbaColor &color) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    /// Name and code as tool tip and for screen readers; no display text, since the swatch is painted.
    QVariant data(const QModelIndex &index, int role) const override;

private:
    std::vector<NamedColor> m_colors;
};

/// Swatches side by side, as many in a row as fit. A click, return, an arrow key or a selection by
/// assistive technology chooses one.
class SwatchList final : public QListView
{
    Q_OBJECT

public:
    explicit SwatchList(QWidget *parent = nullptr);

    void setColors(std::vector<NamedColor> colors);
    const SwatchModel &swatches() const { return *m_model; }
    /// Marks the swatch of the color, if there is one, without choosing it.
    void showColor(const RgbaColor &color);
    /// Makes the list as high as all its rows, without scrolling.
    void setGrowsWithContent(bool grows);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return m_growsWithContent; }
    int heightForWidth(int width) const override;

signals:
    void colorChosen(const lumora::RgbaColor &color);
    /// The same by the swatch's place, for colors that sRGB cannot show.
    void rowChosen(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void choose(const QModelIndex &index);

    SwatchModel *m_model;
    bool m_growsWithContent = false;
    bool m_showing = false;
};

/// Shows one color.
class SwatchWidget final : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    const RgbaColor &color() const { return m_color; }
    void setColor(const RgbaColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    RgbaColor m_color;
};

} // namespace lumora
