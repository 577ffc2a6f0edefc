// SPDX-License-Identifier: MIT
#include "FileChooser.h"

#include "FileDialog.h"
#include "StartFolder.h"

#include <QFileInfo>

namespace lumora
{

void DialogFileChooser::chooseFiles(QWidget *window, const FileRequest &request, FilesChosen chosen)
{
    const QString start = request.startFolder.isEmpty() ? m_lastFolder : request.startFolder;
    QFileDialog *dialog = makeFileDialog(window, request.message, existingStartFolder(start));
    dialog->setFileMode(request.severalFiles ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    if (!request.nameFilters.isEmpty())
        dialog->setNameFilters(request.nameFilters);
    QObject::connect(dialog, &QFileDialog::filesSelected, dialog, [this, chosen](const QStringList &paths) {
        m_lastFolder = QFileInfo(paths.first()).absolutePath();
        chosen(paths);
    });
    dialog->open();
}

} // namespace lumora
