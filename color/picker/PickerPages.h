// SPDX-License-Identifier: MIT
#pragma once

#include "color/picking/PickedColor.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QStackedWidget;

namespace lumora
{

class ColorWheel;
class PickerModel;
class RecentColors;
class SwatchList;

// The picker's modes, one page each. The model outlives every page.

/// The wheel with the brightness below it.
class WheelPage final : public QWidget
{
    Q_OBJECT

public:
    explicit WheelPage(PickerModel *model, QWidget *parent = nullptr);

    ColorWheel *wheel() const { return m_wheel; }

private:
    ColorWheel *m_wheel;
};

/// Sliders with numbers, for red, green and blue, for hue, saturation and brightness, or for gray.
class SlidersPage final : public QWidget
{
    Q_OBJECT

public:
    explicit SlidersPage(PickerModel *model, QWidget *parent = nullptr);

    /// Chooses between the three kinds.
    QComboBox *kind() const { return m_kind; }

private:
    void addKind(const QString &name, const QList<ColorChannel> &channels, PickerModel *model);

    QComboBox *m_kind;
    QStackedWidget *m_sliders;
};

/// The program's own colors and the named colors of the web, with the name of the chosen one.
class PalettesPage final : public QWidget
{
    Q_OBJECT

public:
    explicit PalettesPage(PickerModel *model, QWidget *parent = nullptr);

    SwatchList *toolColors() const { return m_toolColors; }
    SwatchList *webColors() const { return m_webColors; }

private:
    void showPicked();

    PickerModel *m_model;
    SwatchList *m_toolColors;
    SwatchList *m_webColors;
    QLabel *m_name;
};

/// The colors picked before.
class RecentPage final : public QWidget
{
    Q_OBJECT

public:
    explicit RecentPage(PickerModel *model, QWidget *parent = nullptr);

    SwatchList *swatches() const { return m_swatches; }
    void setRecentColors(const RecentColors &recent);

private:
    SwatchList *m_swatches;
    QLabel *m_empty;
};

} // namespace lumora
