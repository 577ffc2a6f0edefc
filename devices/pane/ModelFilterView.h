// SPDX-License-Identifier: MIT
#pragma once

#include "devices/today/ModelFilter.h"

#include <QWidget>

#include <span>
#include <utility>
#include <vector>

class QComboBox;
class QLineEdit;
class QVBoxLayout;

namespace lumora
{

class CheckboxButton;
class IconButton;
class VersionRange;

/// The requirements on a model: search, versions, family, chip, screen, biometry, features and capabilities.
class ModelFilterView final : public QWidget
{
    Q_OBJECT

public:
    explicit ModelFilterView(std::span<const DeviceModel> models, QWidget *parent = nullptr);

    ModelFilter filter() const;
    void reset();
    /// Requires the filter's oldest version, families and capabilities, and nothing else.
    void require(const ModelFilter &filter);

    QLineEdit *search() const { return m_search; }
    VersionRange *range() const { return m_range; }
    QComboBox *chips() const { return m_chips; }
    QComboBox *screens() const { return m_screens; }
    QComboBox *biometries() const { return m_biometries; }
    IconButton *resetButton() const { return m_reset; }
    CheckboxButton *box(DeviceFamily family) const { return boxOf(m_families, family); }
    CheckboxButton *box(ModelFeature feature) const { return boxOf(m_features, feature); }
    CheckboxButton *box(const ModelCapability *capability) const { return boxOf(m_capabilities, capability); }

signals:
    void changed();

private:
    template <typename Value> using Boxes = std::vector<std::pair<Value, CheckboxButton *>>;

    template <typename Value> static CheckboxButton *boxOf(const Boxes<Value> &boxes, Value wanted)
    {
        for (const auto &[value, box] : boxes) {
            if (value == wanted)
                return box;
        }
        return nullptr;
    }

    void setUpSearch();
    void addHeading(QVBoxLayout *column, const QString &text);
    CheckboxButton *makeBox(const QString &text);
    QComboBox *makeChoice(const QString &name, const QString &any);
    void setUpChoices(std::span<const DeviceModel> models);
    QWidget *makeRequirements();

    QLineEdit *m_search;
    VersionRange *m_range;
    QComboBox *m_chips;
    QComboBox *m_screens;
    QComboBox *m_biometries;
    IconButton *m_reset;
    Boxes<DeviceFamily> m_families;
    Boxes<ModelFeature> m_features;
    Boxes<const ModelCapability *> m_capabilities;
};

} // namespace lumora
