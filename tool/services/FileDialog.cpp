// SPDX-License-Identifier: MIT
#include "FileDialog.h"

#include <QHeaderView>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr QSize dialogSize(860, 540);
constexpr int nameWidth = 360;

} // namespace

QFileDialog *makeFileDialog(QWidget *window, const QString &title, const QString &startFolder)
{
    auto *dialog = new QFileDialog(window, title, startFolder);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->resize(dialogSize);
    // Null where the desktop shows its own dialog.
    if (const auto *list = dialog->findChild<QTreeView *>(u"treeView"_s)) {
        for (int column = 1; column < list->header()->count(); ++column)
            list->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
        list->header()->resizeSection(0, nameWidth);
    }
    return dialog;
}

} // namespace lumora
