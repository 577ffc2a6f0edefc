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
    Folder, ///< listed in its own right or only through what lies in it
    Link,   ///< a symbolic link; its content is the text of its target, and nothing follows it
};

/// One file, folder or link of a package.
struct PackageEntry
{
    QString path; ///< from the package's root: steps joined by "/", none of them empty, "." or ".."
    EntryKind kind = EntryKind::File;
    std::uint64_t size = 0;       ///< bytes of the content, as the package states it
    std::uint64_t packedSize = 0; ///< bytes that the content takes in the archive; `size` outside archives
    unsigned mode = 0;            ///< permission bits (07777); 0 where the archive keeps none
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

    /// Up to `size` bytes: their number, 0 at the end. A failure where the content is damaged.
    virtual Result<qsizetype> read(char *buffer, qsizetype size) = 0;
};

/// Sees the content of one entry while a whole package is read.
class EntryConsumer
{
public:
    virtual ~EntryConsumer() = default;

    /// The next bytes, which are gone once the call returns. A content of up to `PackageSource::wholeEntry` bytes comes
    /// in one piece, a longer one in order.
    virtual void take(QByteArrayView bytes) = 0;
    /// After the last byte; `whole` is false where the content is damaged and ends early or differs from its checksum.
    virtual void finish(bool whole) = 0;
};

/// What reading a whole package came to.
struct WholeReading
{
    std::optional<Failure> failure; ///< a limit was passed or the package cannot be read any more
    QStringList damaged;            ///< paths of damaged entries, in the package's order, the first `damagedKept`
};

/// The content of a package where it lies: an archive, an app's folder, or what an archive was unpacked to. Every
/// source shows the tree of an .ipa, with the app at "Payload/NAME.app".
///
/// Names are safe: an entry whose name leaves the package is not listed, and neither is one that no file system could
/// hold. Where an archive holds one name twice, only the last is listed. All functions may be called from several
/// threads at once.
class PackageSource
{
public:
    /// The longest content that is read in one piece by `readAll`; bytes.
    static constexpr qsizetype wholeEntry = 4 << 20;
    static constexpr qsizetype damagedKept = 100;

    virtual ~PackageSource() = default;
    Q_DISABLE_COPY_MOVE(PackageSource)

    /// Where the package lies.
    const QString &path() const { return m_path; }
    /// Everything in the package, ordered by path, code unit by code unit.
    const QList<PackageEntry> &entries() const { return m_entries; }
    /// Why the list ends early; nothing when it is whole.
    const std::optional<Failure> &failure() const { return m_failure; }

    /// Null when nothing lies at the path. Case counts.
    const PackageEntry *find(const QString &path) const;
    bool isFolder(const QString &path) const;
    /// The names right in the folder, ordered; "" is the package's root.
    QStringList names(const QString &folder) const;

    /// The content of the file or link. Of a damaged one as much as can be read: `readAll` reports damage. Fails with
    /// `NotFound`, `IsFolder`, with `TooLarge` when the content is longer than `limit` bytes, or `NotReadable`.
    Result<QByteArray> read(const QString &path, qint64 limit) const;
    /// The first `length` bytes of the content, fewer where it is shorter.
    Result<QByteArray> readStart(const QString &path, qsizetype length) const;
    /// The same content piece by piece, for entries of any size.
    virtual Result<std::unique_ptr<EntryStream>> open(const PackageEntry &entry) const = 0;

    /// Reads every file and link once, on all cores. `consumerFor` is asked on the reading threads, several at a time;
    /// it may return null for an entry that nobody wants to see, whose checksum is compared all the same. A consumer is
    /// used and destroyed on one thread. A stop requested through the token ends the reading soon.
    WholeReading readAll(const std::function<std::unique_ptr<EntryConsumer>(const PackageEntry &)> &consumerFor,
                         const std::stop_token &stop = {}) const;

    /// Where the entry's content lies as a file of its own; empty for an entry inside an archive.
    virtual QString pathOnDisk(const PackageEntry &entry) const;

protected:
    PackageSource(QString path, const ExtractionLimits &limits) : m_path(std::move(path)), m_limits(limits) {}

    /// What may still be read, shared by the threads of one `readAll`.
    class Budget;
    /// What came of one entry.
    enum class Delivery {
        Whole,
        Damaged,
        Broken, ///< the budget is used up or a stop was requested
    };

    const ExtractionLimits &limits() const { return m_limits; }
    /// Takes the entries over, in any order; each path once. Folders that are missing on the way to one are added.
    void setEntries(QList<PackageEntry> entries);
    /// Entries that are no longer seen because a later one has their name: `readAll` checks them like the others.
    void setHidden(QList<PackageEntry> entries) { m_hidden = std::move(entries); }
    void setFailure(Failure failure) { m_failure = std::move(failure); }

    /// Hands the whole content to the consumer, if there is one, without `finish`.
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
