// SPDX-License-Identifier: MIT
#pragma once

#include "Clipboard.h"
#include "FileChooser.h"
#include "FolderChooser.h"
#include "UrlOpener.h"

#include <QString>

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
    /// A private folder that is removed when the process ends; empty if none could be made.
    QString workFolder = {};
};

/// The services of the real desktop, owned in one place: the program's main().
class DesktopServices
{
public:
    Services services() { return {m_fileChooser, m_folderChooser, m_urlOpener, m_clipboard}; }

private:
    DialogFileChooser m_fileChooser;
    DialogFolderChooser m_folderChooser;
    DesktopUrlOpener m_urlOpener;
    SystemClipboard m_clipboard;
};

} // namespace lumora
