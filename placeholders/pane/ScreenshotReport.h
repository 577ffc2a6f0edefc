// SPDX-License-Identifier: MIT
#pragma once

#include "placeholders/screenshots/ScreenshotRules.h"

#include <QHash>
#include <QWidget>

class QComboBox;
class QTreeWidget;
class QTreeWidgetItem;

namespace lumora
{

/// What the stores would say about pictures: a row for each picture or folder with findings, below it these, and below
/// each what helps.
class ScreenshotReport final : public QWidget
{
    Q_OBJECT

public:
    explicit ScreenshotReport(QWidget *parent = nullptr);

    void setScreenshots(const std::vector<ScreenshotFacts> &screenshots);
    /// "12 pictures · 3 findings".
    QString summary() const;

    QTreeWidget *list() const { return m_list; }
    QComboBox *stores() const { return m_stores; }

signals:
    /// The findings are others now.
    void changed();

private:
    void judge();
    void addFinding(const ScreenshotFinding &finding);
    QTreeWidgetItem *rowOf(const QString &path);

    QComboBox *m_stores;
    QTreeWidget *m_list;
    std::vector<ScreenshotFacts> m_screenshots;
    QHash<QString, QTreeWidgetItem *> m_rows; ///< owned by the list
    qsizetype m_findings = 0;
};

} // namespace lumora
