// SPDX-License-Identifier: MIT
#include "FileChooser.h"

#include "StartFolder.h"

#include <QFileDialog>

namespace lumora
{

void DialogFileChooser::chooseFiles(QWidget *window, const FileRequest &request, FilesChosen chosen)
{
    auto *dialog = new QFileDialog(window, request.message, existingStartFolder(request.startFolder));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(request.severalFiles ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    if (!request.nameFilters.isEmpty())
        dialog->setNameFilters(request.nameFilters);
    QObject::connect(dialog, &QFileDialog::filesSelected, dialog, chosen);
    dialog->open();
}

} // namespace lumora
