// SPDX-License-Identifier: MIT
#include "PackageView.h"

#include "ArchiveInput.h"
#include "CurrentEntry.h"
#include "EntryName.h"
#include "PackageListing.h"
#include "foundation/ThreadValue.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

#include <fcntl.h>
#include <libdeflate.h>
#include <minizip/unzip.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr uLong encryptedFlag = 1;
constexpr uLong methodStored = 0;
constexpr uLong methodDeflated = 8;
/// The block size of an extraction, so that at damage both end at the same byte.
constexpr unsigned blockSize = 4096;
/// An entry of at most this many bytes is unpacked at once instead of block by block.
constexpr std::uint64_t unpackedAtOnce = 1 << 20;

struct CloseArchive
{
    void operator()(void *archive) const { ::unzClose(archive); }
};
using ArchivePointer = std::unique_ptr<void, CloseArchive>;

struct FreeDecompressor
{
    void operator()(libdeflate_decompressor *decompressor) const { ::libdeflate_free_decompressor(decompressor); }
};

ArchivePointer openArchive(const QString &path)
{
    return ArchivePointer(openWithBuffers(path));
}

/// The file mode, if the archive was made on a system with permission bits.
unsigned unixMode(const unz_file_info &info)
{
    constexpr uLong unixSystem = 3;
    constexpr uLong darwinSystem = 19;
    const uLong system = info.version >> 8;
    return system == unixSystem || system == darwinSystem ? static_cast<unsigned>(info.external_fa >> 16) : 0;
}

/// The current entry's stored name; empty when its information cannot be read.
std::optional<QByteArray> storedName(unzFile archive, unz_file_info &info)
{
    if (::unzGetCurrentFileInfo(archive, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK)
        return std::nullopt;
    QByteArray name(static_cast<qsizetype>(info.size_filename) + 1, '\0');
    if (::unzGetCurrentFileInfo(archive, &info, name.data(), static_cast<uLong>(name.size()), nullptr, 0, nullptr, 0) !=
        UNZ_OK)
        return std::nullopt;
    name.chop(1);
    return name;
}

/// Reads one entry as an extraction does.
class BlockStream final : public EntryStream
{
public:
    BlockStream(ArchivePointer archive, const QString &path)
        : m_archive(std::move(archive)), m_entry(m_archive.get(), path, {})
    {
    }

    bool begin(unz64_file_pos position)
    {
        unz_file_info info = {};
        if (::unzGoToFilePos64(m_archive.get(), &position) != UNZ_OK || !m_entry.open() ||
            ::unzGetCurrentFileInfo(m_archive.get(), &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK)
            return false;
        m_entry.noteSizes(info);
        return true;
    }

    Result<qsizetype> read(char *buffer, qsizetype size) override
    {
        qsizetype filled = 0;
        while (filled < size) {
            if (m_used == m_count && !fill())
                break;
            const qsizetype count = std::min(size - filled, m_count - m_used);
            std::copy_n(m_block.data() + m_used, count, buffer + filled);
            m_used += count;
            filled += count;
        }
        if (filled == 0 && m_damaged)
            return Failure{FailureCode::NotReadable, {}, "DETAIL_DAMAGED"};
        return filled;
    }

private:
    bool fill()
    {
        if (m_ended)
            return false;
        const int count = m_entry.read(m_block.data(), blockSize);
        m_used = 0;
        m_count = std::max(count, 0);
        if (count > 0)
            return true;
        m_ended = true;
        const bool matches = m_entry.close();
        m_damaged = count < 0 || !matches;
        return false;
    }

    ArchivePointer m_archive;
    CurrentEntry m_entry;
    std::array<char, blockSize> m_block = {};
    qsizetype m_used = 0;
    qsizetype m_count = 0;
    bool m_ended = false;
    bool m_damaged = false;
};

/// Reads an entry that was unpacked at once.
class WholeStream final : public EntryStream
{
public:
    WholeStream(QByteArray bytes, bool damaged) : m_bytes(std::move(bytes)), m_damaged(damaged) {}

    Result<qsizetype> read(char *buffer, qsizetype size) override
    {
        const qsizetype count = std::min(size, m_bytes.size() - m_used);
        if (count == 0 && m_damaged)
            return Failure{FailureCode::NotReadable, {}, "DETAIL_DAMAGED"};
        std::copy_n(m_bytes.constData() + m_used, count, buffer);
        m_used += count;
        return count;
    }

private:
    QByteArray m_bytes;
    qsizetype m_used = 0;
    bool m_damaged;
};

} // namespace

/// The buffers for unpacking at once, kept by each thread from entry to entry.
struct PackageView::Workspace
{
    std::unique_ptr<libdeflate_decompressor, FreeDecompressor> decompressor{::libdeflate_alloc_decompressor()};
    std::vector<char> packed;
    std::vector<char> unpacked;
    std::span<const char> content; ///< of the last unpacked entry; points into one of the two
    bool matches = false;          ///< it has the stored checksum
};

/// Walks through an archive as an extraction does and lists its results.
class PackageView::Listing
{
public:
    Listing(PackageView &view, void *archive) : m_view(view), m_archive(archive), m_entry(archive, view.path(), {}) {}

    void run()
    {
        unz_global_info info = {};
        ::unzGetGlobalInfo(m_archive, &info);
        if (info.number_entry > m_view.limits().entries) {
            fail(FailureCode::TooLarge, {"DETAIL_ENTRIES", {{"[COUNT]", QString::number(info.number_entry)}}});
            return;
        }
        m_listing.reserve(static_cast<qsizetype>(info.number_entry));
        m_view.m_places.reserve(info.number_entry);
        std::ignore = ::unzGoToFirstFile(m_archive);
        while (add() && ::unzGoToNextFile(m_archive) == UNZ_OK) {
        }
        m_view.setHidden(m_listing.takeHidden());
        m_view.setEntries(m_listing.takeEntries());
    }

private:
    /// Lists the current entry. False if an extraction would end here.
    bool add()
    {
        if (++m_count + m_listing.foldersMade() > m_view.limits().entries)
            return fail(FailureCode::TooLarge,
                        {"DETAIL_MORE_FILES", {{"[COUNT]", QString::number(m_view.limits().entries)}}});
        if (!m_entry.open())
            return fail(FailureCode::NotAnArchive, {"DETAIL_ENTRY_UNOPENED", {{"[NUMBER]", QString::number(m_count)}}});
        unz_file_info info = {};
        const auto stored = storedName(m_archive, info);
        if (!stored) {
            m_entry.close();
            return fail(FailureCode::NotAnArchive,
                        {"DETAIL_ENTRY_UNDESCRIBED", {{"[NUMBER]", QString::number(m_count)}}});
        }
        m_entry.noteSizes(info);
        const auto steps = safeSteps(withForwardSlashes(entryNameText(*stored)));
        if (steps && !steps->isEmpty()) {
            if (isFolderEntry(*stored))
                m_listing.addFolder(*steps);
            else
                m_listing.addFile(*steps, described(info));
        }
        m_entry.close();
        return true;
    }

    PackageEntry described(const unz_file_info &info)
    {
        Place place;
        unz64_file_pos position = {};
        ::unzGetFilePos64(m_archive, &position);
        place.directoryOffset = position.pos_in_zip_directory;
        place.directoryNumber = position.num_of_file;
        place.offset = ::unzGetCurrentFileZStreamPos64(m_archive);
        place.packedSize = info.compressed_size;
        place.size = info.uncompressed_size;
        place.crc = static_cast<std::uint32_t>(info.crc);
        place.deflated = info.compression_method == methodDeflated;
        place.ordinary =
            m_entry.isOrdinary() && (info.flag & encryptedFlag) == 0 &&
            (place.deflated || (info.compression_method == methodStored && place.size == place.packedSize));

        PackageEntry entry;
        entry.number = static_cast<qsizetype>(m_view.m_places.size());
        entry.size = place.ordinary ? place.size : m_entry.size(info);
        entry.packedSize = place.packedSize;
        const unsigned mode = unixMode(info);
        entry.mode = mode & 07777;
        if (S_ISLNK(mode)) {
            entry.kind = EntryKind::Link;
            entry.linkTarget = linkTarget();
        }
        m_view.m_places.push_back(place);
        return entry;
    }

    QString linkTarget()
    {
        std::array<char, blockSize> block = {};
        const int count = m_entry.read(block.data(), blockSize);
        return QString::fromUtf8(QByteArrayView(block).first(std::max(count, 0)));
    }

    bool fail(FailureCode code, const FailureDetail &detail)
    {
        m_view.setFailure({code, m_view.path(), detail});
        return false;
    }

    PackageView &m_view;
    void *m_archive;
    CurrentEntry m_entry;
    PackageListing m_listing;
    std::uint64_t m_count = 0;
};

Result<std::unique_ptr<PackageSource>> PackageView::open(const QString &path, const ExtractionLimits &limits)
{
    const Outcome openable = isArchiveFile(path);
    if (!openable)
        return openable.failure();
    FileDescriptor file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    const ArchivePointer archive = openArchive(path);
    if (!file.valid() || !archive)
        return Failure{FailureCode::NotAnArchive, path, {}};
    // Not std::make_unique, since the constructor is private.
    std::unique_ptr<PackageView> view(new PackageView(path, limits, std::move(file)));
    Listing(*view, archive.get()).run();
    return std::unique_ptr<PackageSource>(std::move(view));
}

bool PackageView::unpackWhole(const Place &place, Workspace &workspace) const
{
    if (!place.ordinary || place.packedSize > static_cast<std::uint64_t>(2 * wholeEntry))
        return false;
    const auto packed = static_cast<std::size_t>(place.packedSize);
    const auto size = static_cast<std::size_t>(place.size);
    if (workspace.packed.size() < packed)
        workspace.packed.resize(packed);
    const auto read = readAt(m_archive, place.offset, std::span(workspace.packed).first(packed));
    if (!read || read.value() != packed)
        return false;
    workspace.content = std::span(workspace.packed).first(packed);
    if (place.deflated) {
        if (workspace.unpacked.size() < size + 1)
            workspace.unpacked.resize(size + 1);
        std::size_t length = 0;
        if (::libdeflate_deflate_decompress(workspace.decompressor.get(), workspace.packed.data(), packed,
                                            workspace.unpacked.data(), size, &length) != LIBDEFLATE_SUCCESS ||
            length != size)
            return false;
        workspace.content = std::span(workspace.unpacked).first(size);
    }
    workspace.matches = ::libdeflate_crc32(0, workspace.content.data(), workspace.content.size()) == place.crc;
    return true;
}

PackageSource::Delivery PackageView::deliver(const PackageEntry &entry, EntryConsumer *consumer, Budget &budget) const
{
    static ThreadValue<Workspace> workspaces;
    Workspace &workspace = workspaces.get();
    if (entry.size > static_cast<std::uint64_t>(wholeEntry) || !unpackWhole(placeOf(entry), workspace))
        return PackageSource::deliver(entry, consumer, budget);
    if (!budget.take(workspace.content.size()))
        return Delivery::Broken;
    if (consumer != nullptr && !workspace.content.empty())
        consumer->take(QByteArrayView(workspace.content.data(), static_cast<qsizetype>(workspace.content.size())));
    return workspace.matches ? Delivery::Whole : Delivery::Damaged;
}

Result<std::unique_ptr<EntryStream>> PackageView::open(const PackageEntry &entry) const
{
    if (entry.kind == EntryKind::Folder || entry.number < 0)
        return Failure{FailureCode::IsFolder, entry.path, {}};
    const Place &place = placeOf(entry);
    if (entry.size <= unpackedAtOnce) {
        Workspace workspace;
        if (unpackWhole(place, workspace))
            return std::unique_ptr<EntryStream>(std::make_unique<WholeStream>(
                QByteArray(workspace.content.data(), static_cast<qsizetype>(workspace.content.size())),
                !workspace.matches));
    }
    ArchivePointer archive = openArchive(path());
    if (!archive)
        return Failure{FailureCode::NotReadable, path(), {}};
    auto stream = std::make_unique<BlockStream>(std::move(archive), path());
    if (!stream->begin({place.directoryOffset, place.directoryNumber}))
        return Failure{FailureCode::NotReadable, entry.path, {}};
    return std::unique_ptr<EntryStream>(std::move(stream));
}

Outcome isArchiveFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return Failure{FailureCode::NotFound, path, {}};
    if (info.isDir())
        return Failure{FailureCode::IsFolder, path, {}};
    if (!info.isFile())
        return Failure{FailureCode::NotAnArchive, path, "DETAIL_NO_ORDINARY_FILE"};
    if (!info.isReadable())
        return Failure{FailureCode::NoPermission, path, {}};
    return Done{};
}

} // namespace lumora
