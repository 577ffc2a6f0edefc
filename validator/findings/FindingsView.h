// SPDX-License-Identifier: MIT
#pragma once

#include "validator/rules/Rule.h"

#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace lumora
{

class FindingRow;
class IconButton;
class SegmentedControl;

/// What the store's rules find in a package: one row for each broken rule, errors first, with a choice of severities
/// and a search above them. Tab reaches one row, arrow keys, Home and End go on from it.
class FindingsView final : public QWidget
{
    Q_OBJECT

public:
    explicit FindingsView(QWidget *parent = nullptr);

    /// Replaces the rows; rules of `ignored` have none, but are counted below.
    void show(const QList<Finding> &findings, const QStringList &ignored);
    /// What rows that new icons mend say about the package's own picture; empty for nothing. For the next rows.
    void setIconNote(const QString &note) { m_iconNote = note; }

    const std::vector<FindingRow *> &rows() const { return m_rows; }
    SegmentedControl *severities() const { return m_severities; }
    QLineEdit *search() const { return m_search; }
    IconButton *saveButton() const { return m_save; }
    /// Shows the ignored rules again; hidden without any.
    IconButton *restoreButton() const { return m_restore; }
    /// That nothing is found, or that nothing fits the choice.
    QLabel *emptyLabel() const { return m_empty; }

signals:
    void saveWanted();
    void ruleIgnored(const QString &id);
    void ignoredRestored();
    void iconsWanted();

private:
    void setUpSearch();
    void filter();
    void setCurrent(std::size_t index);
    void move(std::size_t from, int key);

    SegmentedControl *m_severities;
    QLineEdit *m_search;
    IconButton *m_save;
    IconButton *m_restore;
    QLabel *m_empty;
    QVBoxLayout *m_column;
    std::vector<FindingRow *> m_rows;
    QString m_iconNote;
};

} // namespace lumora
