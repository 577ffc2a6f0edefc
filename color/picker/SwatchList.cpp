// SPDX-License-Identifier: MIT
#include "SwatchList.h"

#include "ColorPainting.h"
#include "PickerMetrics.h"
#include "color/ColorCode.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

class SwatchDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto *model = static_cast<const SwatchModel *>(index.model());
        QRectF swatch(0, 0, metrics::swatch, metrics::swatch);
        swatch.moveCenter(QRectF(option.rect).center());
        if (option.state.testFlag(QStyle::State_Selected)) {
            swatch.adjust(2, 2, -2, -2);
            paintFocusRing(*painter, swatch.adjusted(1, 1, -1, -1), metrics::swatchCorner - 2);
        }
        paintSwatch(*painter, swatch, model->at(index).color, metrics::swatchCorner);
    }
    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {metrics::swatchCell, metrics::swatchCell};
    }
};

} // namespace

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

SwatchList::SwatchList(QWidget *parent) : QListView(parent), m_model(new SwatchModel(this))
{
    setModel(m_model);
    setItemDelegate(new SwatchDelegate(this));
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setMovement(QListView::Static);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    // Pointer, arrow keys and assistive technology select; a swatch that the program marks is not chosen.
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this](const QItemSelection &selected) {
        if (!m_showing && !selected.isEmpty())
            choose(selected.indexes().constFirst());
    });
}

void SwatchList::setColors(std::vector<NamedColor> colors)
{
    m_model->setColors(std::move(colors));
    updateGeometry();
}

void SwatchList::showColor(const RgbaColor &color)
{
    const QScopedValueRollback showing(m_showing, true);
    const QModelIndex index = m_model->indexOf(color);
    if (index.isValid())
        setCurrentIndex(index);
    else
        clearSelection();
}

void SwatchList::setGrowsWithContent(bool grows)
{
    m_growsWithContent = grows;
    setVerticalScrollBarPolicy(grows ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    QSizePolicy policy(QSizePolicy::Expanding, grows ? QSizePolicy::Minimum : QSizePolicy::Expanding);
    policy.setHeightForWidth(grows);
    setSizePolicy(policy);
}

QSize SwatchList::sizeHint() const
{
    const int width = metrics::pickerSize.width() - 2 * metrics::pickerMargin;
    return {width, m_growsWithContent ? heightForWidth(width) : 4 * metrics::swatchCell};
}

int SwatchList::heightForWidth(int width) const
{
    const int columns = std::max(1, width / metrics::swatchCell);
    const int rows = (m_model->rowCount() + columns - 1) / columns;
    return rows * metrics::swatchCell;
}

void SwatchList::keyPressEvent(QKeyEvent *event)
{
    // The swatch that gets the focus by Tab is current, but not selected.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space)
        choose(currentIndex());
    else
        QListView::keyPressEvent(event);
}

void SwatchList::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    if (m_growsWithContent && event->oldSize().width() != event->size().width())
        setMinimumHeight(heightForWidth(event->size().width()));
}

void SwatchList::choose(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    emit colorChosen(m_model->at(index).color);
    emit rowChosen(index.row());
}

void SwatchWidget::setColor(const RgbaColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
}

void SwatchWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintSwatch(painter, rect(), m_color, metrics::swatchCorner);
}

} // namespace lumora
