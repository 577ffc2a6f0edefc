// SPDX-License-Identifier: MIT
#pragma once

#include "validator/review/PackageReview.h"

#include <QWidget>

class QVBoxLayout;

namespace lumora
{

class IconButton;
class SizeBar;

/// What else is known of a package: signature and profile, bundles, privacy, sizes, and a way to the models that run
/// it.
class ReviewSections final : public QWidget
{
    Q_OBJECT

public:
    explicit ReviewSections(QWidget *parent = nullptr);

    void show(const PackageReview &review, const QDateTime &now);
    /// All names and values in view, for sending.
    const QStringList &lines() const { return m_lines; }
    SizeBar *sizeBar() const { return m_sizes; }
    IconButton *modelsButton() const { return m_models; }

signals:
    void modelsWanted();

private:
    void addSection(const QString &title, const NamedValues &values);
    NamedValues signatureFacts(const PackageReview &review, const QDateTime &now) const;

    QVBoxLayout *m_column;
    QWidget *m_facts = nullptr;
    SizeBar *m_sizes;
    IconButton *m_models;
    QStringList m_lines;
};

} // namespace lumora
