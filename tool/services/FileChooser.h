// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>

namespace lumora
{

/// The settings of a chooser of existing files.
struct FileRequest
{
    QString message;           ///< the purpose of the choice; the dialog's title
    QString startFolder;       ///< where it opens; empty for the last folder, at first the user's documents
    QStringList nameFilters;   ///< "PNG pictures (*.png)", the first one active; empty for every file
    bool severalFiles = false; ///< whether more than one may be chosen
};

/// Lets the user choose existing files.
class FileChooser
{
public:
    /// Receives the absolute paths, at least one, in the order of the choice.
    using FilesChosen = std::function<void(const QStringList &paths)>;

    virtual ~FileChooser() = default;

    /// Opens a sheet on the window and returns at once; `chosen` is called when the user confirms, nothing when the
    /// user cancels or the window goes away first.
    virtual void chooseFiles(QWidget *window, const FileRequest &request, FilesChosen chosen) = 0;
};

/// The desktop's own file dialog.
class DialogFileChooser final : public FileChooser
{
public:
    void chooseFiles(QWidget *window, const FileRequest &request, FilesChosen chosen) override;

private:
    QString m_lastFolder;
};

} // namespace lumora
