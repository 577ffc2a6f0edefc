// SPDX-License-Identifier: MIT
#pragma once

#include "PackageSource.h"
#include "foundation/FileDescriptor.h"

#include <cstdint>
#include <vector>

namespace lumora
{

/// A package inside an archive, read in place: nothing is written to disk. It shows exactly what `ZipArchive` would
/// unpack: the same names, the same one of two entries with the same name, the same part of a damaged entry.
class PackageView final : public PackageSource
{
public:
    /// Lists the archive. Fails if it cannot be opened. If its directory is damaged, the entries before the damage are
    /// listed, and `failure()` gives the reason.
    static Result<std::unique_ptr<PackageSource>> open(const QString &path, const ExtractionLimits &limits = {});

    Result<std::unique_ptr<EntryStream>> open(const PackageEntry &entry) const override;

private:
    /// The place of an entry's data.
    struct Place
    {
        std::uint64_t offset = 0; ///< of the first data byte in the archive
        std::uint64_t packedSize = 0;
        std::uint64_t size = 0;
        std::uint64_t directoryOffset = 0; ///< the position in the directory: the offset of the entry's record ...
        std::uint64_t directoryNumber = 0; ///< ... and its number
        std::uint32_t crc = 0;
        bool deflated = false;
        bool ordinary = false; ///< neither encrypted nor of 64-bit sizes nor of an unknown method
    };
    class Listing;
    struct Workspace;

    PackageView(QString path, const ExtractionLimits &limits, FileDescriptor archive)
        : PackageSource(std::move(path), limits), m_archive(std::move(archive))
    {
    }

    Delivery deliver(const PackageEntry &entry, EntryConsumer *consumer, Budget &budget) const override;
    const Place &placeOf(const PackageEntry &entry) const { return m_places[static_cast<std::size_t>(entry.number)]; }
    /// Unpacks the whole entry at once. False if the entry must be read block by block.
    bool unpackWhole(const Place &place, Workspace &workspace) const;

    FileDescriptor m_archive;
    std::vector<Place> m_places; ///< by the entries' numbers
};

/// Whether the path can be an archive: a regular, readable file. Check this before opening it, since opening a pipe
/// would wait for its writer.
Outcome isArchiveFile(const QString &path);

} // namespace lumora
