// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace lumora
{

/// What a chooser of a destination folder shows.
struct FolderRequest
{
    QString message;     ///< what the folder is for; the dialog's title
    QString startFolder; ///< where it opens, empty for the user's documents
};

/// Lets the user choose one folder to write into; a new one may be made on the way.
class FolderChooser
{
public:
    /// Receives the folder's absolute path, without a slash at its end.
    using FolderChosen = std::function<void(const QString &path)>;
    /// Told that the user wants none after all.
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
