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
    const auto mode = request.severalFiles ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile;
    openFileDialog(window, {request.message, existingStartFolder(start), mode},
                   [this, filters = request.nameFilters, chosen = std::move(chosen)](QFileDialog *dialog) {
                       if (!filters.isEmpty())
                           dialog->setNameFilters(filters);
                       QObject::connect(dialog, &QFileDialog::filesSelected, dialog,
                                        [this, chosen](const QStringList &paths) {
                                            m_lastFolder = QFileInfo(paths.first()).absolutePath();
                                            chosen(paths);
                                        });
                   });
}

} // namespace lumora
