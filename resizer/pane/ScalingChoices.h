// SPDX-License-Identifier: MIT
#pragma once

#include "resizer/densities/DensityBatch.h"

#include <QWidget>

#include <utility>
#include <vector>

class QComboBox;
class QGridLayout;
class QLabel;
class QSlider;
class QVBoxLayout;

namespace lumora
{

class CheckboxButton;
class ElidedLabel;
class IconButton;

/// What to make of the pictures: the kind of project, the densities to scale from and to, the format, and the place.
class ScalingChoices final : public QWidget
{
    Q_OBJECT

public:
    explicit ScalingChoices(QWidget *parent = nullptr);

    DensityRequest request() const;
    /// How the chosen format is written.
    std::optional<int> webpQuality() const;

    /// The folder for the results; empty to put them beside their sources.
    const QString &destination() const { return m_destination; }
    void setDestination(const QString &folder);

    QComboBox *layouts() const { return m_layouts; }
    QComboBox *froms() const { return m_froms; }
    QComboBox *formats() const { return m_formats; }
    QSlider *quality() const { return m_quality; }
    CheckboxButton *replaceBox() const { return m_replace; }
    IconButton *placeButton() const { return m_placeButton; }

signals:
    void changed();
    /// The user wants to choose the folder for the results.
    void destinationWanted();

private:
    QWidget *makeContent();
    /// A screen reader names the field by its heading.
    void addHeading(QVBoxLayout *column, const QString &text, QWidget *field = nullptr);
    void setUp(QComboBox *choice, const QString &name);
    void connectBox(CheckboxButton *box);
    void setUpQuality();
    const DensityLayout &layoutInUse() const;
    void showDensities();
    void enableBoxes();
    void showQuality();

    QComboBox *m_layouts;
    QComboBox *m_froms;
    QComboBox *m_formats;
    QSlider *m_quality;
    QLabel *m_qualityLabel;
    CheckboxButton *m_replace;
    ElidedLabel *m_place;
    IconButton *m_placeButton;
    QGridLayout *m_boxGrid = nullptr; ///< owned by the content
    std::vector<std::pair<Density, CheckboxButton *>> m_boxes;
    QString m_destination;
};

} // namespace lumora
