// SPDX-License-Identifier: MIT
#include "DropDownStyle.h"

#include "PassedWheel.h"

#include <QComboBox>
#include <QPainter>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int listBorder = 1;

/// Writes the rows of the list below the text of its box. A style sheet cannot: its padding of rows does not move their
/// text.
class RowDelegate final : public QStyledItemDelegate
{
public:
    explicit RowDelegate(QComboBox *box) : QStyledItemDelegate(box), m_box(box) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        const int padding = startOfText();
        const QRect area = row.rect.adjusted(padding, 0, -padding, 0);
        const QString text = row.fontMetrics.elidedText(row.text, row.textElideMode, area.width());
        row.text.clear();
        const QStyle *style = m_box->style();
        style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
        painter->setFont(row.font);
        style->drawItemText(painter, area, QStyle::visualAlignment(row.direction, Qt::AlignLeft | Qt::AlignVCenter),
                            row.palette, row.state.testFlag(QStyle::State_Enabled), text,
                            row.state.testFlag(QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text);
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(2 * startOfText(), 0);
    }

private:
    /// In points from the edge of a row.
    int startOfText() const
    {
        QStyleOptionComboBox closed;
        closed.initFrom(m_box);
        closed.direction = Qt::LeftToRight;
        const QRect text =
            m_box->style()->subControlRect(QStyle::CC_ComboBox, &closed, QStyle::SC_ComboBoxEditField, m_box);
        return std::max(0, text.left() - listBorder);
    }

    QComboBox *m_box;
};

} // namespace

void styleDropDown(QComboBox *box)
{
    // The platform's own list would use the box's background for its highlighted row, too.
    box->setStyleSheet(box->styleSheet() + uR"(
        QComboBox { combobox-popup: 0; }
        QComboBox QAbstractItemView { background: palette(base); color: palette(text); border: 1px solid palette(mid);
            outline: 0; selection-background-color: palette(highlight); selection-color: palette(highlighted-text); }
        QComboBox QAbstractItemView::item { min-height: 26px; }
    )"_s);
    // The box's own delegate ignores the style of the rows.
    box->setItemDelegate(new RowDelegate(box));
    passWheel(box);
}

void frameDropDown(QComboBox *box)
{
    box->setStyleSheet(uR"(
        QComboBox { background: palette(base); border: 2px solid palette(window-text); border-radius: 5px;
            padding: 0 10px; }
        QComboBox:focus { border-color: palette(highlight); }
        QComboBox::drop-down { border: 0; width: 28px; }
        QComboBox::down-arrow { image: url(:/images/dropdown_arrow.svg); width: 12px; height: 12px; }
    )"_s);
}

} // namespace lumora
