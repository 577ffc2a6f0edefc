// SPDX-License-Identifier: MIT
#include "WrappedRows.h"

#include <QEvent>
#include <QStyledItemDelegate>
#include <QTreeView>

#include <algorithm>
#include <limits>

namespace lumora
{

namespace
{

/// The tree asks for heights without saying how wide a row is.
class WrappedRows final : public QStyledItemDelegate
{
public:
    explicit WrappedRows(QTreeView *tree) : QStyledItemDelegate(tree), m_tree(tree)
    {
        tree->viewport()->installEventFilter(this);
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        QStyleOptionViewItem line = option;
        line.features &= ~QStyleOptionViewItem::WrapText;
        // The height of one line with its padding: wrapped at no width, the style would count any number.
        line.rect.setWidth(std::numeric_limits<short>::max());
        const QSize single = QStyledItemDelegate::sizeHint(line, index);
        const QFontMetrics metrics = row.fontMetrics;
        const QRect wrapped = metrics.boundingRect(QRect(0, 0, textWidth(index), std::numeric_limits<short>::max()),
                                                   Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, row.text);
        return {single.width(), single.height() + std::max(0, wrapped.height() - metrics.height())};
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_tree->viewport() && event->type() == QEvent::Resize)
            emit sizeHintChanged({});
        return QStyledItemDelegate::eventFilter(watched, event);
    }

private:
    /// In points, of a row of the depth.
    int textWidth(const QModelIndex &index) const
    {
        int depth = m_tree->rootIsDecorated() ? 1 : 0;
        for (QModelIndex parent = index.parent(); parent.isValid(); parent = parent.parent())
            ++depth;
        const int margin = m_tree->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_tree) + 1;
        // The style sheet's own padding beside the text.
        constexpr int padding = 2;
        return std::max(1, m_tree->viewport()->width() - depth * m_tree->indentation() - 2 * (margin + padding));
    }

    QTreeView *m_tree;
};

} // namespace

void wrapRows(QTreeView *tree)
{
    tree->setWordWrap(true);
    tree->setUniformRowHeights(false);
    tree->setItemDelegate(new WrappedRows(tree));
}

} // namespace lumora
