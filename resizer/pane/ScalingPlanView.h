// SPDX-License-Identifier: MIT
#pragma once

#include "resizer/densities/DensityPlan.h"

#include <QTreeWidget>

namespace lumora
{

/// Lists what a run will do before it begins: each source with its size, and below it each result with its size and
/// what becomes of a file that exists; then what is left out, with the reason.
class ScalingPlanView final : public QTreeWidget
{
    Q_OBJECT

public:
    /// The list shows this number of sources and of failures at most, and says how many there are beyond.
    static constexpr std::size_t rowLimit = 500;

    explicit ScalingPlanView(QWidget *parent = nullptr);

    void setPlan(const DensityPlan &plan);

private:
    void addSource(const PlannedSource &source);
    void addFailure(const Failure &failure);
    void addRest(std::size_t count);
};

/// "6 files from 3 pictures", and what else the plan holds: files that are kept or replaced, roundings, failures.
QString planSummary(const DensityPlan &plan);

} // namespace lumora
