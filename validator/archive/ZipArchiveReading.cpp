// SPDX-License-Identifier: MIT
#include "CurrentEntry.h"
#include "EntryFile.h"
#include "EntryName.h"
#include "ExtractionFolder.h"
#include "ZipArchive.h"
#include "ZipDate.h"
#include "foundation/Log.h"
#include "foundation/PrintableText.h"

#include <array>

#include <minizip/unzip.h>

namespace lumora
{

using namespace Qt::StringLiterals;

namespace
{

constexpr unsigned blockSize = 4096;
/// The number of bytes that are written between two checks of the free space.
constexpr std::uint64_t diskCheckInterval = 4 << 20;

void logSkipped(const QString &name)
{
    logLine(u"Skipped, its target cannot be created: "_s + printableText(name));
}

/// The entry's date.
ZipDate storedDate(const unz_file_info &info)
{
    const tm_unz &date = info.tmu_date;
    return {static_cast<int>(date.tm_year), static_cast<int>(date.tm_mon), static_cast<int>(date.tm_mday),
            static_cast<int>(date.tm_hour), static_cast<int>(date.tm_min), static_cast<int>(date.tm_sec)};
}

} // namespace

bool ZipArchive::UnzipFileTo(const QString &path, bool overWrite)
{
    m_extraction = Done{};
    m_damaged.clear();
    m_entries = 0;
    m_bytes = 0;
    m_bytesUntilDiskCheck = 0;

    if (m_unzFile != nullptr && m_entriesClaimed > m_limits.entries) {
        stop(FailureCode::TooLarge, {"DETAIL_ENTRIES", {{"[COUNT]", QString::number(m_entriesClaimed)}}});
        return false;
    }
    auto folder = ExtractionFolder::open(path);
    if (!folder) {
        m_extraction = folder.failure();
        return false;
    }
    if (::unzGoToFirstFile(m_unzFile) != UNZ_OK)
        OutputErrorMessage(u"Failed"_s);
    CurrentEntry entry(m_unzFile, m_path, m_password);
    do {
        if (extractEntry(entry, folder.value(), overWrite) == Step::Stop)
            return false;
    } while (::unzGoToNextFile(m_unzFile) == UNZ_OK);
    return true;
}

ZipArchive::Step ZipArchive::extractEntry(CurrentEntry &entry, ExtractionFolder &folder, bool overWrite)
{
    if (m_stop.stop_requested())
        return Step::Stop;
    if (++m_entries + folder.foldersMade() > m_limits.entries)
        return stop(FailureCode::TooLarge, {"DETAIL_MORE_FILES", {{"[COUNT]", QString::number(m_limits.entries)}}});
    if (!entry.open()) {
        OutputErrorMessage(u"Error occurs"_s);
        return stop(FailureCode::NotAnArchive, {"DETAIL_ENTRY_UNOPENED", {{"[NUMBER]", QString::number(m_entries)}}});
    }
    unz_file_info info = {};
    const auto stored = currentEntry(info);
    if (!stored) {
        OutputErrorMessage(u"Error occurs while getting file info"_s);
        entry.close();
        return stop(FailureCode::NotAnArchive,
                    {"DETAIL_ENTRY_UNDESCRIBED", {{"[NUMBER]", QString::number(m_entries)}}});
    }
    entry.noteSizes(info);

    const QString name = withForwardSlashes(entryNameText(*stored));
    const auto steps = safeSteps(name);
    if (!steps || steps->isEmpty()) {
        logSkipped(name);
    } else if (isFolderEntry(*stored)) {
        const Outcome made = folder.makeFolder(*steps);
        if (!made)
            skipUncreated(name, made.failure());
    } else if (overWrite || !folder.exists(*steps) || OverWrite(folder.path() + u'/' + name)) {
        auto file = folder.createFile(*steps);
        if (file)
            return writeEntry(entry, folder, std::move(file).value(), info, QString::fromUtf8(steps->join('/')));
        skipUncreated(name, file.failure());
    }
    entry.close();
    return Step::Next;
}

void ZipArchive::skipUncreated(const QString &name, const Failure &failure)
{
    logSkipped(name);
    // The walk continues, but the extraction is not complete.
    if (failure.code == FailureCode::CannotWrite && m_extraction)
        m_extraction = Failure{failure.code, m_path, failure.detail};
}

std::optional<QByteArray> ZipArchive::currentEntry(unz_file_info &info)
{
    if (::unzGetCurrentFileInfo(m_unzFile, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK)
        return std::nullopt;
    QByteArray name(static_cast<qsizetype>(info.size_filename) + 1, '\0');
    if (::unzGetCurrentFileInfo(m_unzFile, &info, name.data(), static_cast<uLong>(name.size()), nullptr, 0, nullptr,
                                0) != UNZ_OK)
        return std::nullopt;
    name.chop(1);
    return name;
}

ZipArchive::Step ZipArchive::writeEntry(CurrentEntry &entry, ExtractionFolder &folder, FileDescriptor descriptor,
                                        const unz_file_info &info, const QString &name)
{
    EntryFile file(std::move(descriptor));
    std::array<char, blockSize> block = {};
    int count = 0;
    while ((count = entry.read(block.data(), blockSize)) > 0) {
        const auto bytes = static_cast<std::size_t>(count);
        Step next = mayWrite(folder, bytes);
        if (next == Step::Next) {
            const Outcome written = file.write(std::span(block).first(bytes));
            if (!written)
                next = stop(written.failure().code, written.failure().detail);
        }
        if (next == Step::Stop || m_stop.stop_requested()) {
            entry.close();
            return Step::Stop;
        }
    }
    if (count < 0)
        OutputErrorMessage(u"Failed to reading zip file"_s);
    const Outcome finished = file.finish();
    if (!finished)
        return stop(finished.failure().code, finished.failure().detail);
    if (!file.setModified(dateOfEntry(storedDate(info))))
        logLine(u"Failed to set attributes"_s);
    const bool checksumMatches = entry.close();
    if ((count < 0 || !checksumMatches) && m_damaged.size() < damagedNamesKept)
        m_damaged += name;
    return Step::Next;
}

ZipArchive::Step ZipArchive::mayWrite(const ExtractionFolder &folder, std::uint64_t bytes)
{
    m_bytes += bytes;
    if (m_bytes > m_limits.bytes)
        return stop(FailureCode::TooLarge,
                    {"DETAIL_MORE_UNPACKED", {{"[SIZE]", QString::number(m_limits.bytes >> 20)}}});
    if (m_bytesUntilDiskCheck < bytes) {
        if (folder.freeBytes() < m_limits.freeBytesKept + diskCheckInterval)
            return stop(FailureCode::CannotWrite, "DETAIL_DISK_NEARLY_FULL");
        m_bytesUntilDiskCheck = diskCheckInterval;
    }
    m_bytesUntilDiskCheck -= bytes;
    return Step::Next;
}

ZipArchive::Step ZipArchive::stop(FailureCode code, const FailureDetail &detail)
{
    m_extraction = Failure{code, m_path, detail};
    return Step::Stop;
}

} // namespace lumora
