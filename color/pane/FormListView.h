// SPDX-License-Identifier: MIT
#pragma once

#include "color/forms/FormList.h"

#include <QWidget>

#include <vector>

namespace lumora
{

class CheckboxButton;
class FormRowView;
class SegmentedControl;

/// Every form of the color, those of the chosen platform first. Alt with a digit copies the first ten, Alt and Shift
/// with a digit the next nine.
class FormListView final : public QWidget
{
    Q_OBJECT

public:
    explicit FormListView(QWidget *parent = nullptr);

    void setColor(const WideColor &color);
    const std::vector<FormRowView *> &rows() const { return m_rows; }
    SegmentedControl *platforms() const { return m_platforms; }
    CheckboxButton *displayP3() const { return m_displayP3; }

signals:
    void copied(const QString &text);

private:
    QWidget *makeRows();
    void showRows();

    WideColor m_color;
    SegmentedControl *m_platforms;
    CheckboxButton *m_displayP3;
    std::vector<FormRowView *> m_rows;
};

} // namespace lumora
