// SPDX-License-Identifier: MIT
#include "PackageSource.h"

#include "foundation/ThreadGroup.h"

#include <QSet>

#include <algorithm>
#include <mutex>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qsizetype blockSize = 1 << 16;
/// A limit, since each thread holds an entry of up to `wholeEntry` bytes, packed and unpacked.
constexpr unsigned mostThreads = 6;

bool comesBefore(const PackageEntry &entry, const QString &path)
{
    return entry.path < path;
}

/// The remaining work and the results of one `readAll`, shared by its threads.
struct Progress
{
    std::vector<const PackageEntry *> entries;
    std::atomic<std::size_t> next = 0;
    std::mutex mutex;
    std::vector<const PackageEntry *> damaged;
};

} // namespace

const PackageEntry *PackageSource::find(const QString &path) const
{
    const auto found = std::lower_bound(m_entries.cbegin(), m_entries.cend(), path, comesBefore);
    return found != m_entries.cend() && found->path == path ? &*found : nullptr;
}

bool PackageSource::isFolder(const QString &path) const
{
    const PackageEntry *entry = find(path);
    return path.isEmpty() || (entry != nullptr && entry->kind == EntryKind::Folder);
}

QStringList PackageSource::names(const QString &folder) const
{
    // The character after "/": all paths in a folder sort between the two.
    constexpr QChar behindSlash(u'/' + 1);
    const QString start = folder.isEmpty() ? QString() : QString(folder + u'/');
    QStringList names;
    auto entry = std::lower_bound(m_entries.cbegin(), m_entries.cend(), start, comesBefore);
    while (entry != m_entries.cend() && entry->path.startsWith(start)) {
        const qsizetype slash = entry->path.indexOf(u'/', start.size());
        if (slash < 0) {
            names += entry->path.sliced(start.size());
            ++entry;
        } else {
            // The folder itself comes before its contents.
            entry =
                std::lower_bound(entry, m_entries.cend(), QString(entry->path.first(slash) + behindSlash), comesBefore);
        }
    }
    return names;
}

Result<QByteArray> PackageSource::read(const QString &path, qint64 limit) const
{
    auto bytes = readStart(path, static_cast<qsizetype>(limit + 1));
    if (bytes && bytes.value().size() > limit)
        return Failure{FailureCode::TooLarge, path, {}};
    return bytes;
}

Result<QByteArray> PackageSource::readStart(const QString &path, qsizetype length) const
{
    const PackageEntry *entry = find(path);
    if (entry == nullptr)
        return Failure{FailureCode::NotFound, path, {}};
    if (entry->kind == EntryKind::Folder)
        return Failure{FailureCode::IsFolder, path, {}};
    const auto stream = open(*entry);
    if (!stream)
        return stream.failure();
    QByteArray bytes;
    while (bytes.size() < length) {
        const qsizetype filled = bytes.size();
        // The stated size may be a lie, so the buffer grows with the actual content.
        bytes.resize(std::min(length, filled + std::max(blockSize, filled)));
        const auto count = stream.value()->read(bytes.data() + filled, bytes.size() - filled);
        // Returns the part before the damage.
        bytes.truncate(filled + (count ? count.value() : 0));
        if (!count || count.value() == 0)
            break;
    }
    return bytes;
}

WholeReading
PackageSource::readAll(const std::function<std::unique_ptr<EntryConsumer>(const PackageEntry &)> &consumerFor,
                       const std::stop_token &stop) const
{
    Progress progress;
    for (const PackageEntry &entry : m_entries) {
        if (entry.kind != EntryKind::Folder)
            progress.entries.push_back(&entry);
    }
    const auto isHidden = [this](const PackageEntry *entry) {
        return !m_hidden.isEmpty() && entry >= m_hidden.constData() && entry < m_hidden.constData() + m_hidden.size();
    };
    for (const PackageEntry &entry : m_hidden)
        progress.entries.push_back(&entry);
    // The largest first, so that the threads end at about the same time.
    std::stable_sort(progress.entries.begin(), progress.entries.end(),
                     [](const PackageEntry *a, const PackageEntry *b) { return a->size > b->size; });

    Budget budget(m_limits.bytes, stop);
    const auto work = [&] {
        for (std::size_t i = progress.next++; i < progress.entries.size(); i = progress.next++) {
            const PackageEntry *entry = progress.entries[i];
            const auto consumer = isHidden(entry) ? nullptr : consumerFor(*entry);
            const Delivery delivery = deliver(*entry, consumer.get(), budget);
            if (consumer)
                consumer->finish(delivery == Delivery::Whole);
            if (delivery == Delivery::Broken)
                return;
            if (delivery == Delivery::Damaged) {
                const std::lock_guard guard(progress.mutex);
                progress.damaged.push_back(entry);
            }
        }
    };
    {
        const auto threads = std::min<std::size_t>(std::clamp(std::thread::hardware_concurrency(), 1u, mostThreads),
                                                   progress.entries.size());
        ThreadGroup others;
        if (threads > 1)
            others.start(threads - 1, work);
        work();
    }

    WholeReading reading;
    if (budget.isPassed())
        reading.failure = Failure{FailureCode::TooLarge,
                                  m_path,
                                  {"DETAIL_MORE_UNPACKED", {{"[SIZE]", QString::number(m_limits.bytes >> 20)}}}};
    std::sort(progress.damaged.begin(), progress.damaged.end(),
              [](const PackageEntry *a, const PackageEntry *b) { return a->number < b->number; });
    for (const PackageEntry *entry : progress.damaged) {
        if (reading.damaged.size() == damagedKept)
            break;
        reading.damaged += entry->path;
    }
    return reading;
}

QString PackageSource::pathOnDisk(const PackageEntry &entry) const
{
    Q_UNUSED(entry)
    return {};
}

void PackageSource::setEntries(QList<PackageEntry> entries)
{
    std::sort(entries.begin(), entries.end(),
              [](const PackageEntry &a, const PackageEntry &b) { return a.path < b.path; });
    m_entries = std::move(entries);
    QList<PackageEntry> added;
    QSet<QString> seen;
    QStringView last;
    for (const PackageEntry &entry : std::as_const(m_entries)) {
        // Most files follow another one of the same folder.
        const QStringView parent = QStringView(entry.path).first(qMax<qsizetype>(0, entry.path.lastIndexOf(u'/')));
        if (parent == last)
            continue;
        last = parent;
        QString folder = entry.path;
        for (qsizetype slash = folder.lastIndexOf(u'/'); slash >= 0; slash = folder.lastIndexOf(u'/')) {
            folder.truncate(slash);
            if (seen.contains(folder) || find(folder) != nullptr)
                break;
            seen.insert(folder);
            PackageEntry missing;
            missing.path = folder;
            missing.kind = EntryKind::Folder;
            added += missing;
        }
    }
    if (added.isEmpty())
        return;
    m_entries += added;
    std::sort(m_entries.begin(), m_entries.end(),
              [](const PackageEntry &a, const PackageEntry &b) { return a.path < b.path; });
}

PackageSource::Delivery PackageSource::deliver(const PackageEntry &entry, EntryConsumer *consumer, Budget &budget) const
{
    const auto stream = open(entry);
    if (!stream)
        return Delivery::Damaged;
    const bool inOnePiece = entry.size <= static_cast<std::uint64_t>(wholeEntry);
    QByteArray buffer(inOnePiece ? static_cast<qsizetype>(entry.size) + 1 : blockSize, Qt::Uninitialized);
    qsizetype filled = 0;
    while (true) {
        const auto count = stream.value()->read(buffer.data() + filled, buffer.size() - filled);
        const qsizetype read = count ? count.value() : 0;
        if (!budget.take(static_cast<std::uint64_t>(read)))
            return Delivery::Broken;
        filled += read;
        if (read > 0 && inOnePiece && filled < buffer.size())
            continue;
        if (consumer != nullptr && filled > 0)
            consumer->take(QByteArrayView(buffer).first(filled));
        if (!count)
            return Delivery::Damaged;
        if (read == 0)
            return Delivery::Whole;
        filled = 0;
    }
}

} // namespace lumora
