// SPDX-License-Identifier: MIT
#pragma once

#include "devices/today/ModelGroup.h"
#include "widgets/buttons/PaintedButton.h"

namespace lumora
{

/// One model in the list: its name, its chip and its versions. A press opens its card; the mark in its lower corner,
/// or Insert, chooses it for a comparison.
class ModelTile final : public PaintedButton
{
    Q_OBJECT

public:
    explicit ModelTile(const ModelGroup &group, QWidget *parent = nullptr);

    const GroupVerdict &verdict() const { return m_verdict; }
    /// The tool tip says why the model does not fit.
    void setVerdict(const GroupVerdict &verdict);
    bool isCompared() const { return m_isCompared; }
    void setCompared(bool isCompared);
    /// The name in a tile of the width: in one line if it has room there, else in two, broken where its additions in
    /// parentheses begin.
    QStringList nameLines(int width) const;
    /// In points, for a tile of the width.
    int heightFor(int width) const;
    /// The opacity, 0 to 1.
    float alpha() const { return m_alpha; }
    void setAlpha(float alpha);

signals:
    void comparisonToggled();
    /// An arrow key, Home or End was pressed.
    void moved(int key);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void drawRect(QPainter &painter) override;
    void drawFocusRing(QPainter &painter) override;

private:
    void describe();
    QRect markPlace() const;

    QString m_detail;
    int m_nameWidth = 0;
    GroupVerdict m_verdict;
    float m_alpha = 1.0F;
    bool m_isCompared = false;
};

} // namespace lumora
