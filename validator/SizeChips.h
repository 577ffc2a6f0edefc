// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QList>
#include <QRect>
#include <QStringList>
#include <QWidget>

namespace lumora
{

/// Short texts, each in a rounded box, as many side by side as fit.
class SizeChips final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int height = 22; ///< of one chip
    static constexpr int gap = 6;     ///< between two chips, and between two rows

    explicit SizeChips(QWidget *parent = nullptr);

    const QStringList &texts() const { return m_texts; }
    void setTexts(const QStringList &texts);

    /// The places of chips of these widths: row by row, from the side where reading begins. A chip that is wider than a
    /// row is cut to it.
    static QList<QRect> placed(const QList<int> &widths, int rowWidth, Qt::LayoutDirection direction);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QList<int> widths() const;

    QFont m_font;
    QStringList m_texts;
};

} // namespace lumora
