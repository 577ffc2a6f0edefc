// SPDX-License-Identifier: MIT
#include "FileGathering.h"

#include "validator/binary/catalog/CatalogInPieces.h"
#include "validator/binary/macho/BinaryInPieces.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr quint64 largestBinary = quint64{1} << 30;

bool isKept(const QString &name)
{
    static const QStringList names{u"Info.plist"_s, u"embedded.mobileprovision"_s, u"embedded.provisionprofile"_s,
                                   u"PrivacyInfo.xcprivacy"_s, localizedInfoFile};
    return names.contains(name);
}

std::optional<PackageBinary> readBinary(const QString &path, QByteArrayView content)
{
    auto facts = readMachO(content);
    if (!facts)
        return std::nullopt;
    PackageBinary binary{path, std::move(*facts), {}};
    for (const BinarySlice &slice : binary.facts.slices) {
        if (!slice.codeSignature)
            continue;
        const QByteArrayView part =
            content.sliced(static_cast<qsizetype>(slice.range.offset), static_cast<qsizetype>(slice.range.size));
        binary.signatures += readCodeSignature(part, *slice.codeSignature);
    }
    return binary;
}

} // namespace

class FileGathering::Consumer final : public EntryConsumer
{
public:
    Consumer(const PackageEntry &entry, FileGathering &gathering)
        : m_entry(entry), m_gathering(gathering), m_keeps(gathering.m_kept[gathering.placeOf(entry)])
    {
    }

    void take(QByteArrayView bytes) override
    {
        m_digesting.add(bytes);
        if (m_first)
            begin(bytes);
        m_first = false;
        if (m_binary)
            m_binary->take(bytes);
        if (m_catalog)
            m_catalog->take(bytes);
        if (m_keeps && static_cast<quint64>(m_found.content.size() + bytes.size()) <= m_entry.size)
            m_found.content.append(bytes);
    }

    void finish(bool) override
    {
        const auto repeat = [this](const std::function<void(QByteArrayView)> &take) {
            readEntry(m_gathering.m_source, m_entry, [&](QByteArrayView bytes) {
                take(bytes);
                return true;
            });
        };
        if (m_binary) {
            if (auto facts = m_binary->facts()) {
                QList<CodeSignature> signatures = m_binary->signatures(*facts, repeat);
                m_found.binary = PackageBinary{m_entry.path, std::move(*facts), std::move(signatures)};
            }
        }
        if (m_catalog)
            m_found.catalog = m_catalog->catalog(repeat);
        m_gathering.add(m_entry, m_digesting.result(), std::move(m_found));
    }

private:
    /// A file that comes in one piece is read where it is.
    void begin(QByteArrayView bytes)
    {
        const bool isWhole = static_cast<quint64>(bytes.size()) == m_entry.size;
        m_found.isStaticArchive = isStaticArchive(bytes);
        if (isMachO(bytes)) {
            if (isWhole)
                m_found.binary = readBinary(m_entry.path, bytes);
            else
                m_binary.emplace(qMin<quint64>(m_entry.size, largestBinary));
        } else if (m_entry.path == m_gathering.m_catalog) {
            if (isWhole)
                m_found.catalog = readAssetCatalog(bytes);
            else
                m_catalog.emplace();
        }
    }

    const PackageEntry &m_entry;
    FileGathering &m_gathering;
    bool m_keeps;
    bool m_first = true;
    std::optional<BinaryInPieces> m_binary;   ///< of a long binary
    std::optional<CatalogInPieces> m_catalog; ///< of a long catalogue
    FileDigesting m_digesting;
    FoundFacts m_found;
};

FileGathering::FileGathering(const PackageSource &source, QString catalog)
    : m_source(source), m_kept(static_cast<std::size_t>(source.entries().size())), m_catalog(std::move(catalog)),
      m_digests(static_cast<std::size_t>(source.entries().size()))
{
    quint64 left = mostContentOfAll;
    for (const PackageEntry &entry : source.entries()) {
        if (!isKept(entry.name()) || entry.size > qMin(mostContent, left))
            continue;
        m_kept[placeOf(entry)] = true;
        left -= entry.size;
    }
}

std::unique_ptr<EntryConsumer> FileGathering::consumerFor(const PackageEntry &entry)
{
    return std::make_unique<Consumer>(entry, *this);
}

const FileDigests *FileGathering::digests(const PackageEntry &entry) const
{
    const auto &digests = m_digests[placeOf(entry)];
    return digests ? &*digests : nullptr;
}

bool FileGathering::isLeftOut(const PackageEntry &entry) const
{
    return isKept(entry.name()) && entry.kind == EntryKind::File && !m_kept[placeOf(entry)];
}

const FoundFacts *FileGathering::found(const PackageEntry &entry) const
{
    const auto found = m_found.find(placeOf(entry));
    return found == m_found.end() ? nullptr : &found->second;
}

QByteArray FileGathering::content(const QString &path) const
{
    const PackageEntry *entry = m_source.find(path);
    const FoundFacts *facts = entry == nullptr ? nullptr : found(*entry);
    return facts == nullptr ? QByteArray() : facts->content;
}

QByteArray FileGathering::digest(const QString &path, DigestKind kind) const
{
    const PackageEntry *entry = m_source.find(path);
    const FileDigests *known = entry == nullptr ? nullptr : digests(*entry);
    if (known == nullptr)
        return {};
    if (kind == DigestKind::Sha1)
        return QByteArrayView(known->sha1).toByteArray();
    if (kind == DigestKind::Sha256 || kind == DigestKind::Sha256Truncated)
        return QByteArrayView(known->sha256).first(digestSize(kind)).toByteArray();
    Digest digest(kind);
    readEntry(m_source, *entry, [&](QByteArrayView bytes) {
        digest.add(bytes);
        return true;
    });
    return digest.result();
}

std::size_t FileGathering::placeOf(const PackageEntry &entry) const
{
    return static_cast<std::size_t>(&entry - m_source.entries().constData());
}

void FileGathering::add(const PackageEntry &entry, const FileDigests &digests, FoundFacts found)
{
    const std::size_t place = placeOf(entry);
    const std::lock_guard lock(m_mutex);
    m_digests[place] = digests;
    if (!found.isEmpty())
        m_found.emplace(place, std::move(found));
}

void readEntry(const PackageSource &source, const PackageEntry &entry, const std::function<bool(QByteArrayView)> &take)
{
    constexpr qsizetype blockSize = 1 << 16;
    const auto stream = source.open(entry);
    if (!stream)
        return;
    QByteArray block(blockSize, Qt::Uninitialized);
    while (true) {
        const auto count = stream.value()->read(block.data(), block.size());
        if (!count || count.value() == 0 || !take(QByteArrayView(block).first(count.value())))
            return;
    }
}

} // namespace lumora
