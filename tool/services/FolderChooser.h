// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace lumora
{

/// The settings of a chooser of a destination folder.
struct FolderRequest
{
    QString message;     ///< the purpose of the folder; the dialog's title
    QString startFolder; ///< where it opens; empty for the user's documents
};

/// Lets the user choose one folder to write into, or make a new one.
class FolderChooser
{
public:
    /// Receives the folder's absolute path, without a slash at the end.
    using FolderChosen = std::function<void(const QString &path)>;
    /// Called when the user cancels.
    using FolderDeclined = std::function<void()>;

    virtual ~FolderChooser() = default;

    /// Opens a sheet on the window and returns at once; `chosen` is called when the user confirms, `declined`, if
    /// there is one, when the user cancels, nothing when the window goes away first.
    virtual void chooseFolder(QWidget *window, const FolderRequest &request, FolderChosen chosen,
                              FolderDeclined declined = {}) = 0;
};

/// The desktop's own folder dialog.
class DialogFolderChooser final : public FolderChooser
{
public:
    void chooseFolder(QWidget *window, const FolderRequest &request, FolderChosen chosen,
                      FolderDeclined declined = {}) override;
};

} // namespace lumora
