// SPDX-License-Identifier: MIT
#pragma once

#include "Clipboard.h"
#include "FileChooser.h"
#include "FileManager.h"
#include "FileReader.h"
#include "FolderChooser.h"
#include "UrlOpener.h"

#include <QString>

#include <chrono>
#include <memory>

namespace lumora
{

/// The services of the desktop that a controller uses, passed to each controller when it is made. They outlive every
/// controller. A value: copy it freely.
struct Services
{
    FileChooser &fileChooser;
    FolderChooser &folderChooser;
    UrlOpener &urlOpener;
    Clipboard &clipboard;
    FileManager &fileManager;
    /// Shared, because a read of a share that does not answer may outlive every controller.
    std::shared_ptr<const FileReader> fileReader;
    /// A private folder that is removed when the process ends; empty if none could be made.
    QString workFolder = {};
    /// The program that reads foreign files in a process of its own; empty where there is none.
    QString readerProgram = {};
    /// A reader that tells no progress for that long is ended.
    std::chrono::milliseconds readerPatience{60'000};
};

/// The services of the real desktop, owned in one place: the program's main().
class DesktopServices
{
public:
    Services services()
    {
        return {m_fileChooser, m_folderChooser, m_urlOpener, m_clipboard, m_fileManager, m_fileReader};
    }

private:
    DialogFileChooser m_fileChooser;
    DialogFolderChooser m_folderChooser;
    DesktopUrlOpener m_urlOpener;
    SystemClipboard m_clipboard;
    DesktopFileManager m_fileManager;
    std::shared_ptr<const FileReader> m_fileReader = std::make_shared<DiskReader>();
};

} // namespace lumora
