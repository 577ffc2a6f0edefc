// SPDX-License-Identifier: MIT
#include "FolderChooser.h"

#include "FileDialog.h"
#include "StartFolder.h"

#include <QDir>

namespace lumora
{

void DialogFolderChooser::chooseFolder(QWidget *window, const FolderRequest &request, FolderChosen chosen,
                                       FolderDeclined declined)
{
    const FileDialogRequest dialogRequest{request.message, existingStartFolder(request.startFolder),
                                          QFileDialog::Directory};
    openFileDialog(window, dialogRequest,
                   [chosen = std::move(chosen), declined = std::move(declined)](QFileDialog *dialog) {
                       dialog->setOption(QFileDialog::ShowDirsOnly);
                       QObject::connect(dialog, &QFileDialog::fileSelected, dialog, [chosen](const QString &path) {
                           const QString absolute = QDir::cleanPath(QDir(path).absolutePath());
                           chosen(absolute);
                       });
                       if (declined)
                           QObject::connect(dialog, &QFileDialog::rejected, dialog, declined);
                   });
}

} // namespace lumora
