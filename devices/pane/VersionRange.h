// SPDX-License-Identifier: MIT
#pragma once

#include "devices/today/ModelGroup.h"

#include <QWidget>

#include <span>
#include <vector>

class QLabel;
class QSlider;

namespace lumora
{

/// Two sliders over all versions of iOS, the oldest and the newest that an app runs on, and the share of models that
/// remain.
class VersionRange final : public QWidget
{
    Q_OBJECT

public:
    explicit VersionRange(std::span<const DeviceModel> models, QWidget *parent = nullptr);

    QSlider *from() const { return m_from; }
    QSlider *to() const { return m_to; }
    QLabel *shareLabel() const { return m_share; }
    /// Sets the range of the filter; both ends of all versions mean no requirement.
    void apply(ModelFilter &filter) const;
    void reset();
    /// Requires the oldest version with its major number, if the filter has an oldest version.
    void require(const ModelFilter &filter);

signals:
    void changed();

private:
    QSlider *makeSlider(const QString &name, int value);
    void showRange();

    std::vector<ModelGroup> m_groups;
    std::vector<OsVersion> m_versions;
    QLabel *m_title;
    QLabel *m_share;
    QSlider *m_from;
    QSlider *m_to;
};

} // namespace lumora
