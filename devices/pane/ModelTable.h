// SPDX-License-Identifier: MIT
#pragma once

#include "devices/today/ModelCard.h"

#include <QScrollArea>

#include <vector>

namespace lumora
{

class FactButton;

/// The facts of one model, or of several side by side; those that differ are bold. A press on a fact copies it.
class ModelTable final : public QScrollArea
{
    Q_OBJECT

public:
    explicit ModelTable(QWidget *parent = nullptr);

    /// The groups live as long as the view.
    void showModels(const std::vector<ModelGroup> &groups);
    /// The facts, row by row.
    const std::vector<FactButton *> &facts() const { return m_facts; }

signals:
    void copied(const QString &text);

private:
    std::vector<FactButton *> m_facts;
};

} // namespace lumora
