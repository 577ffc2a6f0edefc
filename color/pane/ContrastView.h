// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/ContrastTable.h"

#include <QWidget>

#include <array>

class QGridLayout;
class QLabel;

namespace lumora
{

class BFPopoverColorWell;
class CodeField;
class IconButton;
class VerdictMark;

/// The contrast of the color on a second one, with the verdicts of WCAG 2 and the way to the nearest color that passes.
class ContrastView final : public QWidget
{
    Q_OBJECT

public:
    explicit ContrastView(QWidget *parent = nullptr);

    void setColor(const WideColor &color);
    const WideColor &background() const { return m_background; }
    void setBackground(const WideColor &background);

    CodeField *field() const { return m_field; }
    BFPopoverColorWell *well() const { return m_well; }
    QLabel *ratioLabel() const { return m_ratio; }
    /// The marks and the button of one purpose.
    struct UseRow
    {
        VerdictMark *aa = nullptr;
        VerdictMark *aaa = nullptr; ///< null for interface parts
        IconButton *nearest = nullptr;
    };
    const UseRow &row(ContrastUse use) const { return m_rows[static_cast<std::size_t>(use)]; }

signals:
    /// The user wants the nearest color that passes.
    void colorWanted(const lumora::WideColor &color);

private:
    void setUpControls();
    void addRow(QGridLayout *grid, ContrastUse use, const QString &name);
    void showVerdicts();

    WideColor m_color;
    WideColor m_background = wideColorFromBytes(255, 255, 255);
    std::array<ContrastRow, 3> m_table{};
    CodeField *m_field;
    BFPopoverColorWell *m_well;
    QLabel *m_ratio;
    QLabel *m_sample;
    std::array<UseRow, 3> m_rows;
};

} // namespace lumora
