// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/buttons/PaintedButton.h"

#include <QTimer>

namespace lumora
{

/// A fact that is copied by a press: its text in as many lines as it needs, underlined under the pointer. Says for a
/// while that it was copied.
class FactButton final : public PaintedButton
{
    Q_OBJECT

public:
    /// `name` is the fact's, for screen readers.
    FactButton(const QString &name, const QString &value, bool isBold, QWidget *parent = nullptr);

    const QString &value() const { return m_value; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void copied(const QString &value);

protected:
    void drawRect(QPainter &painter) override;
    void drawFocusRing(QPainter &painter) override;

private:
    QString m_value;
    QFont m_font;
    QTimer m_copied;
};

} // namespace lumora
