// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>

#include <functional>

namespace lumora
{

/// The settings of a dialog for files or a folder.
struct FileDialogRequest
{
    QString title;
    QString startFolder; ///< exists; a portal chooses a folder by itself
    QFileDialog::FileMode mode = QFileDialog::ExistingFile;
};

/// Makes a dialog on the window, passes it to `prepare` and opens it; it deletes itself when it closes. If it is not
/// the desktop's own, it is wide enough for names beside sizes and dates. Where a portal shows the desktop's dialogs,
/// the dialog opens once the portal has said that it has them, and is the toolkit's own if the portal does not; a
/// second request of the window is dropped meanwhile.
void openFileDialog(QWidget *window, const FileDialogRequest &request, std::function<void(QFileDialog *)> prepare);

} // namespace lumora
