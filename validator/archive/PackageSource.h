// SPDX-License-Identifier: MIT
#pragma once

#include "ExtractionLimits.h"
#include "foundation/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

namespace lumora
{

enum class EntryKind {
    File,
    Folder, ///< listed itself, or only implied by the paths of its contents
    Link,   ///< a symbolic link; its content is the text of its target, and nothing follows it
};

/// One file, folder or link of a package.
struct PackageEntry
{
    QString path; ///< from the package's root: steps joined by "/", none of them empty, "." or ".."
    EntryKind kind = EntryKind::File;
    std::uint64_t size = 0;       ///< bytes of the content, as the package states it
    std::uint64_t packedSize = 0; ///< bytes of the packed content in the archive; `size` outside archives
    unsigned mode = 0;            ///< permission bits (07777); 0 if the archive has none
    QString linkTarget;           ///< of a link
    qsizetype number = -1;        ///< the source's own number for it

    /// The last step of the path.
    QString name() const { return path.mid(path.lastIndexOf(u'/') + 1); }
};

/// Reads the content of one entry from its start to its end, in memory that does not grow with it.
class EntryStream
{
public:
    virtual ~EntryStream() = default;

    /// Reads up to `size` bytes. Returns their number, 0 at the end; fails if the content is damaged.
    virtual Result<qsizetype> read(char *buffer, qsizetype size) = 0;
};

/// Receives the content of one entry while a whole package is read.
class EntryConsumer
{
public:
    virtual ~EntryConsumer() = default;

    /// The next bytes, valid only during the call. A content of up to `PackageSource::wholeEntry` bytes comes in one
    /// piece, a longer one in several, in order.
    virtual void take(QByteArrayView bytes) = 0;
    /// Called after the last byte; `whole` is false if the content is damaged and ends early or differs from its
    /// checksum.
    virtual void finish(bool whole) = 0;
};

/// The result of reading a whole package.
struct WholeReading
{
    std::optional<Failure> failure; ///< a limit was passed or the package cannot be read any more
    QStringList damaged;            ///< paths of the first `damagedKept` damaged entries, in the package's order
};

/// The content of a package, read in place: an archive, an app's folder, or the folder of an unpacked archive. Every
/// source shows the tree of an .ipa, with the app at "Payload/NAME.app".
///
/// Names are safe: an entry whose name leaves the package, or is impossible in a file system, is not listed. If an
/// archive has a name twice, only the last is listed. All functions may be called from several threads at once.
class PackageSource
{
public:
    /// The longest content that is read in one piece by `readAll`; bytes.
    static constexpr qsizetype wholeEntry = 4 << 20;
    static constexpr qsizetype damagedKept = 100;

    virtual ~PackageSource() = default;
    Q_DISABLE_COPY_MOVE(PackageSource)

    /// The path of the package.
    const QString &path() const { return m_path; }
    /// Everything in the package, ordered by path, code unit by code unit.
    const QList<PackageEntry> &entries() const { return m_entries; }
    /// Why the list ends early; empty when it is complete.
    const std::optional<Failure> &failure() const { return m_failure; }

    /// The entry at the path, null if there is none. Case-sensitive.
    const PackageEntry *find(const QString &path) const;
    bool isFolder(const QString &path) const;
    /// The names directly in the folder, ordered; "" is the package's root.
    QStringList names(const QString &folder) const;

    /// The content of the file or link; of a damaged one the readable part, as `readAll` reports damage. Fails with
    /// `NotFound`, `IsFolder`, `TooLarge` when the content is longer than `limit` bytes, or `NotReadable`.
    Result<QByteArray> read(const QString &path, qint64 limit) const;
    /// The first `length` bytes of the content, or all of a shorter one.
    Result<QByteArray> readStart(const QString &path, qsizetype length) const;
    /// The same content piece by piece, for entries of any size.
    virtual Result<std::unique_ptr<EntryStream>> open(const PackageEntry &entry) const = 0;

    /// Reads every file and link once, on all cores. `consumerFor` is called on the reading threads, several at a time.
    /// It may return null for an entry of no interest, whose checksum is still compared. A consumer is used and
    /// destroyed on one thread. A stop request through the token ends the reading soon.
    WholeReading readAll(const std::function<std::unique_ptr<EntryConsumer>(const PackageEntry &)> &consumerFor,
                         const std::stop_token &stop = {}) const;

    /// The path of the file with the entry's content; empty for an entry inside an archive.
    virtual QString pathOnDisk(const PackageEntry &entry) const;

protected:
    PackageSource(QString path, const ExtractionLimits &limits) : m_path(std::move(path)), m_limits(limits) {}

    /// The remaining budget of bytes, shared by the threads of one `readAll`.
    class Budget;
    /// The result of one entry.
    enum class Delivery {
        Whole,
        Damaged,
        Broken, ///< the budget is used up or a stop was requested
    };

    const ExtractionLimits &limits() const { return m_limits; }
    /// Takes the entries in any order, each path once. Adds missing parent folders.
    void setEntries(QList<PackageEntry> entries);
    /// Entries that are hidden by a later one of the same name: `readAll` checks them like the others.
    void setHidden(QList<PackageEntry> entries) { m_hidden = std::move(entries); }
    void setFailure(Failure failure) { m_failure = std::move(failure); }

    /// Passes the whole content to the consumer, if there is one, without calling `finish`.
    virtual Delivery deliver(const PackageEntry &entry, EntryConsumer *consumer, Budget &budget) const;

private:
    QString m_path;
    ExtractionLimits m_limits;
    QList<PackageEntry> m_entries;
    QList<PackageEntry> m_hidden;
    std::optional<Failure> m_failure;
};

class PackageSource::Budget
{
public:
    Budget(std::uint64_t bytes, std::stop_token stop) : m_bytes(bytes), m_stop(std::move(stop)) {}

    /// False when no more may be read.
    bool take(std::uint64_t bytes) { return !m_stop.stop_requested() && (m_taken += bytes) <= m_bytes; }
    bool isPassed() const { return m_taken > m_bytes; }

private:
    std::uint64_t m_bytes;
    std::stop_token m_stop;
    std::atomic<std::uint64_t> m_taken = 0;
};

} // namespace lumora
