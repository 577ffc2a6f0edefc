// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QStringList>
#include <QWidget>

#include <vector>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace lumora
{

class HoverButton;

/// A file of the next batch.
struct PlannedPicture
{
    QString path;
    QString leftOut;    ///< the reason, empty for a picture that is taken
    QString replacedBy; ///< the path of the picture whose half has the same name and comes later; mostly empty
};

/// Lists the files of the next batch before it begins: the pictures to be halved, with their sizes before and after,
/// and the files that are left out, with the reason. Hidden while the list is empty.
class RetinaPlanView final : public QWidget
{
    Q_OBJECT

public:
    /// The list shows this number of files at most.
    static constexpr int rowLimit = 500;

    explicit RetinaPlanView(QWidget *parent = nullptr);

    void setPlan(const std::vector<PlannedPicture> &plan);
    void clear() { setPlan({}); }
    /// Completes the row of a picture to be halved.
    void setSizes(const QString &path, QSize now, QSize then);
    void setProblem(const QString &path, const QString &problem);

    QTreeWidget *list() const { return m_list; }
    QLabel *summary() const { return m_summary; }
    /// Asks for the destination again.
    HoverButton *goOnButton() const { return m_goOnButton; }

private:
    void setUpList();
    void addRow(const PlannedPicture &picture);
    /// Marks the row of a picture whose half another one replaces.
    static void markReplaced(QTreeWidgetItem *row, const PlannedPicture &picture);
    QTreeWidgetItem *rowOf(const QString &path) const;

    QLabel *m_summary;
    HoverButton *m_goOnButton;
    QTreeWidget *m_list;
};

} // namespace lumora
