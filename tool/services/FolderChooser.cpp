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
    QFileDialog *dialog = makeFileDialog(window, request.message, existingStartFolder(request.startFolder));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog, [chosen = std::move(chosen)](const QString &path) {
        const QString absolute = QDir::cleanPath(QDir(path).absolutePath());
        chosen(absolute);
    });
    if (declined)
        QObject::connect(dialog, &QFileDialog::rejected, dialog, std::move(declined));
    dialog->open();
}

} // namespace lumora
