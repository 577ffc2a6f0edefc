// SPDX-License-Identifier: MIT
#pragma once

#include "tool/services/Services.h"

#include <QList>

namespace lumora
{

/// Records each request and stays open until the test confirms or cancels it, as a user would.
class RecordingFileChooser final : public FileChooser
{
public:
    void chooseFiles(QWidget *window, const FileRequest &request, FilesChosen chosen) override;
    bool isOpen() const { return m_chosen != nullptr; }
    void confirm(const QStringList &paths);
    void cancel() { m_chosen = nullptr; }

    QList<FileRequest> requests;
    QList<QWidget *> windows;

private:
    FilesChosen m_chosen;
};

/// The same for folders.
class RecordingFolderChooser final : public FolderChooser
{
public:
    void chooseFolder(QWidget *window, const FolderRequest &request, FolderChosen chosen,
                      FolderDeclined declined = {}) override;
    bool isOpen() const { return m_chosen != nullptr; }
    void confirm(const QString &path);
    void cancel();

    QList<FolderRequest> requests;
    QList<QWidget *> windows;

private:
    FolderChosen m_chosen;
    FolderDeclined m_declined;
};

/// Records every address instead of opening it.
class RecordingUrlOpener final : public UrlOpener
{
public:
    void open(const QUrl &url) override { opened << url; }
    QString applicationFor(const QUrl &) const override { return application; }

    QList<QUrl> opened;
    QString application = QStringLiteral("mail.desktop");
};

/// A clipboard that other programs cannot see.
class RecordingClipboard final : public Clipboard
{
public:
    void setText(const QString &newText) override;
    QStringList files() const override { return copiedFiles; }
    QImage image() const override { return copiedImage; }
    QColor color() const override { return copiedColor; }
    QString plainText() const override { return text; }

    QString text;
    QStringList copiedFiles;
    QImage copiedImage;
    QColor copiedColor;
    int changes = 0; ///< how often a text was set
};

/// Records the paths instead of showing them.
class RecordingFileManager final : public FileManager
{
public:
    void show(const QString &path) override { shown << path; }

    QStringList shown;
};

/// Reads files without blocking.
class ReadyFiles final : public FileReader
{
public:
    bool mayStall() const override { return false; }
    Result<QByteArray> read(const QString &path, qint64 limit) const override;
};

/// Services for tests: nothing leaves the test, everything is recorded.
struct RecordingServices
{
    RecordingFileChooser fileChooser;
    RecordingFolderChooser folderChooser;
    RecordingUrlOpener urlOpener;
    RecordingClipboard clipboard;
    RecordingFileManager fileManager;
    std::shared_ptr<const FileReader> fileReader = std::make_shared<ReadyFiles>();
    QString workFolder = {};    ///< set by tests that make one
    QString readerProgram = {}; ///< set by tests that have one
    std::chrono::milliseconds readerPatience{60'000};

    Services services()
    {
        return {fileChooser, folderChooser, urlOpener,     clipboard,     fileManager,
                fileReader,  workFolder,    readerProgram, readerPatience};
    }
};

} // namespace lumora
