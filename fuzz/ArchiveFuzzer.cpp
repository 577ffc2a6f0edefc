// SPDX-License-Identifier: MIT
// Any bytes as an app package: unpacked, read, judged and removed as in the program. Whatever the archive contains,
// nothing may appear beside the work folder.
#include "foundation/Log.h"
#include "validator/archive/FolderSource.h"
#include "validator/archive/PackageView.h"
#include "validator/archive/ZipArchive.h"
#include "validator/bundle/PackageInspection.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

constexpr ExtractionLimits fuzzLimits = {1 << 20, 200, 0};

void inspect(const QString &path, const QString &folder)
{
    const CmsProfileDecoder decoder;
    inspectPackage(path, {folder, decoder, fuzzLimits});
}

/// The view of the archive must show the results of unpacking: names, damage, failure. One difference is known: the
/// view reads the two symbols that the deflate format leaves unused as the longest match. If the content then has the
/// promised checksum, it is whole for the view and damaged for the unpacking.
void compareWithView(const QString &path, const QString &folder)
{
    const CmsProfileDecoder decoder;
    const Extraction extraction = extractPackage(path, {folder, decoder, fuzzLimits});
    const auto view = PackageView::open(path, fuzzLimits);
    const auto unpacked = FolderSource::open(folder + u'/' + extractionFolder, FolderLayout::Package);
    if (!view || !unpacked)
        return;
    const WholeReading reading = view.value()->readAll([](const PackageEntry &) { return nullptr; });
    // A limit ends both, but not at the same entry.
    if (!extraction.outcome || reading.failure)
        return;
    const auto isDamagedOnDisk = [&](const QString &entry) { return extraction.damagedEntries.contains(entry); };
    if (!std::all_of(reading.damaged.cbegin(), reading.damaged.cend(), isDamagedOnDisk))
        std::abort();
    const QList<PackageEntry> &seen = view.value()->entries();
    const QList<PackageEntry> &onDisk = unpacked.value()->entries();
    if (!std::equal(seen.cbegin(), seen.cend(), onDisk.cbegin(), onDisk.cend(),
                    [](const PackageEntry &one, const PackageEntry &other) {
                        return one.path == other.path &&
                               (one.kind == EntryKind::Folder) == (other.kind == EntryKind::Folder);
                    }))
        std::abort();
}

/// The reader without minizip, as for encrypted entries.
void extractWithPassword(const QString &path, const QString &folder)
{
    ZipArchive archive;
    archive.setLimits(fuzzLimits);
    if (archive.UnzipOpenFile(path, u"secret"_s))
        archive.UnzipFileTo(folder, true);
    archive.UnzipCloseFile();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    QLoggingCategory::setFilterRules(u"lumora.info=false"_s);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder(u"/dev/shm/lumora-fuzz-XXXXXX"_s);
    const QString path = folder.filePath(u"package.ipa"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        std::abort();
    file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    file.close();
    const QString work = folder.filePath(u"work"_s);
    inspect(path, work);
    extractWithPassword(path, work);
    QDir(work).removeRecursively();
    compareWithView(path, work);
    QDir(work).removeRecursively();
    if (QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot) !=
        QStringList{u"package.ipa"_s})
        std::abort();
    return 0;
}
