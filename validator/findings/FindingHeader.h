// SPDX-License-Identifier: MIT
#pragma once

#include "validator/rules/Rule.h"
#include "widgets/buttons/PaintedButton.h"

namespace lumora
{

/// The line of a broken rule: its severity as a symbol, its title, how often it is broken, and the store's code. A
/// press opens what is below it and closes it again.
class FindingHeader final : public PaintedButton
{
    Q_OBJECT

public:
    FindingHeader(const Rule &rule, qsizetype count, QWidget *parent = nullptr);

    bool isOpen() const { return m_isOpen; }
    void setOpen(bool isOpen);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// An arrow key was pressed, or Home or End.
    void moved(int key);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void drawRect(QPainter &painter) override;
    void drawFocusRing(QPainter &painter) override;

private:
    /// The rectangle at the other side, where text is read from right to left.
    QRectF placed(const QRectF &area) const;
    void drawSymbol(QPainter &painter, const QRectF &area) const;
    void drawArrow(QPainter &painter, const QRectF &area) const;

    const Severity m_severity;
    QString m_detail; ///< the code, and how often
    bool m_isOpen = false;
};

} // namespace lumora
