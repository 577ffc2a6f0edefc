// SPDX-License-Identifier: MIT
#pragma once

#include "ExtractionLimits.h"
#include "ZipArchiveDelegate.h"
#include "foundation/Result.h"

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>
#include <stop_token>

struct unz_file_info_s;

namespace lumora
{

class CurrentEntry;
class ExtractionFolder;
class FileDescriptor;

/// A zip archive over minizip: extracts every entry into a folder, or creates an archive and adds files to it. At most
/// one archive is open for reading and one for writing. All work is done on the calling thread.
///
/// Archives may be hostile: an entry whose name leaves the destination, directly or through a link, counts as a target
/// that cannot be created, and an extraction ends before it exceeds its limits.
class ZipArchive
{
public:
    ZipArchive() = default;
    /// Closes an archive open for writing. An archive open for reading must be closed by `UnzipCloseFile`.
    ~ZipArchive();
    Q_DISABLE_COPY_MOVE(ZipArchive)

    /// Creates the archive and replaces an existing file at the path.
    bool CreateZipFile2(const QString &path);
    /// Encrypts all files that are added until the archive is closed (traditional zip encryption).
    bool CreateZipFile2(const QString &path, const QString &password);
    /// Adds the file at `path` under the name `newname`, deflated. Holds its whole contents in memory.
    bool addFileToZip(const QString &path, const QString &newname);
    /// False when no archive was open or when it could not be finished. Forgets the password.
    bool CloseZipFile2();

    bool UnzipOpenFile(const QString &path);
    bool UnzipOpenFile(const QString &path, const QString &password);
    /// Extracts all entries below the folder. True when the walk reached the archive's end, even where single entries
    /// could not be read or created; false when an entry could not be opened or a limit was reached.
    bool UnzipFileTo(const QString &path, bool overWrite);
    /// True when no archive was open or it closed without error. Forgets the password.
    bool UnzipCloseFile();

    /// Forwards the message to the delegate. Asks for the selector without a colon but sends the operation with one, so
    /// a delegate with only the latter is never called.
    void OutputErrorMessage(const QString &message);
    /// Asks the delegate, under the same rule, whether the file may be replaced; true when there is no delegate to ask.
    bool OverWrite(const QString &path);
    /// The earliest date of the format, 1 January 1980.
    QDate Date1980() const;

    std::shared_ptr<ZipArchiveDelegate> delegate() const { return m_delegate; }
    void setDelegate(std::shared_ptr<ZipArchiveDelegate> delegate) { m_delegate = std::move(delegate); }

    void setLimits(const ExtractionLimits &limits) { m_limits = limits; }
    /// A stop request through the token ends an extraction at its next block, with the result false.
    void setStopToken(std::stop_token token) { m_stop = std::move(token); }

    /// Why the last extraction returned false or left entries out that the system did not let it create. `Done` when it
    /// reached the end whole or was stopped through the token.
    const Outcome &extraction() const { return m_extraction; }
    /// Names of entries whose data the last extraction found damaged (the first `damagedNamesKept` of them).
    const QStringList &damagedEntries() const { return m_damaged; }
    static constexpr qsizetype damagedNamesKept = 100;

private:
    enum class Step {
        Next, ///< continue with the next entry
        Stop, ///< the walk cannot or must not continue
    };

    Step extractEntry(CurrentEntry &entry, ExtractionFolder &folder, bool overWrite);
    /// Logs the entry. If the system and not the name is the cause (a full disk), that is the extraction's failure.
    void skipUncreated(const QString &name, const Failure &failure);
    /// The current entry's stored name; empty when its information cannot be read.
    std::optional<QByteArray> currentEntry(unz_file_info_s &info);
    Step writeEntry(CurrentEntry &entry, ExtractionFolder &folder, FileDescriptor descriptor,
                    const unz_file_info_s &info, const QString &name);
    /// Counts the bytes before they are written and stops when they exceed a limit.
    Step mayWrite(const ExtractionFolder &folder, std::uint64_t bytes);
    Step stop(FailureCode code, const FailureDetail &detail);

    bool addPlain(const QByteArray &name, const QDateTime &modified, const QByteArray &contents);
    bool addEncrypted(const QByteArray &name, const QDateTime &modified, const QByteArray &contents);

    void *m_zipFile = nullptr; ///< minizip's handle
    void *m_unzFile = nullptr; ///< minizip's handle
    QByteArray m_password;
    std::shared_ptr<ZipArchiveDelegate> m_delegate;

    QString m_path; ///< of the archive open for reading
    std::uint64_t m_entriesClaimed = 0;
    ExtractionLimits m_limits;
    std::stop_token m_stop;
    Outcome m_extraction = Done{};
    QStringList m_damaged;
    std::uint64_t m_entries = 0;
    std::uint64_t m_bytes = 0;
    std::uint64_t m_bytesUntilDiskCheck = 0;
};

} // namespace lumora
