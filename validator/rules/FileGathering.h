// SPDX-License-Identifier: MIT
#pragma once

#include "PackageContents.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace lumora
{

/// What a file holds beside its digests, for the few files that hold facts.
struct FoundFacts
{
    QByteArray content; ///< of property lists and profiles
    std::optional<PackageBinary> binary;
    std::optional<AssetCatalog> catalog;
    bool isStaticArchive = false;

    bool isEmpty() const { return content.isEmpty() && !binary && !catalog && !isStaticArchive; }
};

/// Gathers the results of the reading threads, by the entry's place in the source's list. Most files give digests only,
/// so that the memory is small however many there are.
class FileGathering
{
public:
    /// A longer property list or profile is left out. Of all together only the first, by path, are kept.
    static constexpr quint64 mostContent = quint64{4} << 20;
    static constexpr quint64 mostContentOfAll = quint64{16} << 20;

    /// Reads only the catalogue at that path. The source must outlive the gathering.
    FileGathering(const PackageSource &source, QString catalog);
    Q_DISABLE_COPY_MOVE(FileGathering)

    /// Takes the entry's content. Called on the reading threads.
    std::unique_ptr<EntryConsumer> consumerFor(const PackageEntry &entry);

    /// Null if the entry was not read. Call this and the others only when all threads are done.
    const FileDigests *digests(const PackageEntry &entry) const;
    /// Whether it is a property list or profile that is too large to be kept.
    bool isLeftOut(const PackageEntry &entry) const;
    /// Null for a file without facts.
    const FoundFacts *found(const PackageEntry &entry) const;
    /// Empty when there is no such file or its content was not kept.
    QByteArray content(const QString &path) const;
    /// The digest of any kind; empty if the file was not read. Reads it again for an unusual kind.
    QByteArray digest(const QString &path, DigestKind kind) const;

private:
    class Consumer;

    std::size_t placeOf(const PackageEntry &entry) const;
    void add(const PackageEntry &entry, const FileDigests &digests, FoundFacts found);

    const PackageSource &m_source;
    std::vector<bool> m_kept; ///< whose content is kept
    QString m_catalog;        ///< path of the app's catalogue
    std::mutex m_mutex;
    std::vector<std::optional<FileDigests>> m_digests;
    std::map<std::size_t, FoundFacts> m_found;
};

/// Reads the entry from its start until `take` returns false.
void readEntry(const PackageSource &source, const PackageEntry &entry, const std::function<bool(QByteArrayView)> &take);

} // namespace lumora
