// SPDX-License-Identifier: MIT
#pragma once

#include "SwatchModel.h"

#include <QListView>

namespace lumora
{

/// Swatches side by side, as many in a row as fit. A click, return, an arrow key or a selection by
/// assistive technology chooses one.
class SwatchList final : public QListView
{
    Q_OBJECT

public:
    explicit SwatchList(QWidget *parent = nullptr);

    void setColors(std::vector<NamedColor> colors);
    const SwatchModel &swatches() const { return *m_model; }
    /// Marks the swatch of the colour, none where there is none, without choosing it.
    void showColor(const RgbaColor &color);
    /// The list takes the height of all its rows instead of scrolling.
    void setGrowsWithContent(bool grows);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return m_growsWithContent; }
    int heightForWidth(int width) const override;

signals:
    void colorChosen(const lumora::RgbaColor &color);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void choose(const QModelIndex &index);

    SwatchModel *m_model;
    bool m_growsWithContent = false;
    bool m_showing = false;
};

} // namespace lumora
