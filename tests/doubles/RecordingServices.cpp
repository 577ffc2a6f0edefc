// SPDX-License-Identifier: MIT
#include "RecordingServices.h"

#include "foundation/WholeFile.h"

#include <utility>

namespace lumora
{

void RecordingFileChooser::chooseFiles(QWidget *window, const FileRequest &request, FilesChosen chosen)
{
    requests << request;
    windows << window;
    m_chosen = std::move(chosen);
}

void RecordingFileChooser::confirm(const QStringList &paths)
{
    std::exchange(m_chosen, nullptr)(paths);
}

void RecordingFolderChooser::chooseFolder(QWidget *window, const FolderRequest &request, FolderChosen chosen,
                                          FolderDeclined declined)
{
    requests << request;
    windows << window;
    m_chosen = std::move(chosen);
    m_declined = std::move(declined);
}

void RecordingFolderChooser::confirm(const QString &path)
{
    std::exchange(m_chosen, nullptr)(path);
}

void RecordingFolderChooser::cancel()
{
    m_chosen = nullptr;
    if (const FolderDeclined declined = std::exchange(m_declined, nullptr))
        declined();
}

Result<QByteArray> ReadyFiles::read(const QString &path, qint64 limit) const
{
    return readWholeFile(path, limit);
}

void RecordingClipboard::setText(const QString &newText)
{
    text = newText;
    copiedFiles.clear();
    copiedImage = {};
    copiedColor = {};
    ++changes;
}

} // namespace lumora
