// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

namespace lumora
{

/// Shows files in the desktop's file manager.
class FileManager
{
public:
    virtual ~FileManager() = default;

    /// Shows the file or folder at the absolute path, if possible selected in its parent folder.
    /// Returns at once.
    virtual void show(const QString &path) = 0;
};

/// Asks the file manager over the session bus to select the folder. If no file manager answers, the portal opens the
/// folder; without a portal, the desktop's program for folders does.
class DesktopFileManager final : public QObject, public FileManager
{
    Q_OBJECT

public:
    void show(const QString &path) override;

private:
    void showByPortal(const QString &path);
    static void open(const QString &path);
};

} // namespace lumora
