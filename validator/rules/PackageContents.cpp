// SPDX-License-Identifier: MIT
#include "PackageContents.h"

#include "validator/binary/macho/BinaryInPieces.h"
#include "validator/bundle/PropertyList.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr quint64 largestBinary = quint64{1} << 30;
constexpr qsizetype largestKept = 64 << 20;

/// What a file holds beside its digests, for the few files that hold facts.
struct FoundFacts
{
    QByteArray content;
    std::optional<PackageBinary> binary;
    bool isStaticArchive = false;
};

bool isKept(const QString &name)
{
    static const QStringList names{u"Info.plist"_s,  u"embedded.mobileprovision"_s, u"embedded.provisionprofile"_s,
                                   u"Assets.car"_s,  u"PrivacyInfo.xcprivacy"_s,    u"CodeResources"_s,
                                   localizedInfoFile};
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

/// Reads the entry from its start once more.
void readAgain(const PackageSource &source, const PackageEntry &entry, const std::function<void(QByteArrayView)> &take)
{
    constexpr qsizetype blockSize = 1 << 16;
    const auto stream = source.open(entry);
    if (!stream)
        return;
    QByteArray block(blockSize, Qt::Uninitialized);
    while (true) {
        const auto count = stream.value()->read(block.data(), block.size());
        if (!count || count.value() == 0)
            return;
        take(QByteArrayView(block).first(count.value()));
    }
}

/// The results of the reading threads, by the entry's place in the source's list. Most files give digests only, so that
/// the memory is small however many there are.
class Gathering
{
public:
    explicit Gathering(const PackageSource &source)
        : m_source(source), m_digests(static_cast<std::size_t>(source.entries().size()))
    {
    }

    void add(const PackageEntry &entry, const FileDigests &digests, FoundFacts found)
    {
        const std::size_t place = placeOf(entry);
        const std::lock_guard lock(m_mutex);
        m_digests[place] = digests;
        if (found.binary || found.isStaticArchive || !found.content.isEmpty())
            m_found.emplace(place, std::move(found));
    }

    const PackageSource &source() const { return m_source; }

    /// Call these only when all threads are done.
    const std::optional<FileDigests> &digests(const PackageEntry &entry) const { return m_digests[placeOf(entry)]; }
    /// Null for a file without facts.
    const FoundFacts *found(const PackageEntry &entry) const
    {
        const auto found = m_found.find(placeOf(entry));
        return found == m_found.end() ? nullptr : &found->second;
    }
    QByteArray content(const QString &path) const
    {
        const PackageEntry *entry = m_source.find(path);
        const FoundFacts *facts = entry == nullptr ? nullptr : found(*entry);
        return facts == nullptr ? QByteArray() : facts->content;
    }

private:
    std::size_t placeOf(const PackageEntry &entry) const
    {
        return static_cast<std::size_t>(&entry - m_source.entries().constData());
    }

    const PackageSource &m_source;
    std::mutex m_mutex;
    std::vector<std::optional<FileDigests>> m_digests;
    std::map<std::size_t, FoundFacts> m_found;
};

class FileConsumer final : public EntryConsumer
{
public:
    FileConsumer(const PackageEntry &entry, Gathering &gathering)
        : m_entry(entry), m_gathering(gathering), m_keeps(isKept(entry.name()))
    {
    }

    void take(QByteArrayView bytes) override
    {
        m_digesting.add(bytes);
        if (m_first) {
            m_first = false;
            m_found.isStaticArchive = isStaticArchive(bytes);
            if (isMachO(bytes)) {
                // A file that comes in one piece is read where it is.
                if (static_cast<quint64>(bytes.size()) == m_entry.size)
                    m_found.binary = readBinary(m_entry.path, bytes);
                else
                    m_pieces.emplace(qMin<quint64>(m_entry.size, largestBinary));
            }
        }
        if (m_pieces)
            m_pieces->take(bytes);
        else if (m_keeps && m_found.content.size() + bytes.size() <= largestKept)
            m_found.content.append(bytes);
    }

    void finish(bool) override
    {
        if (m_pieces)
            finishBinary();
        m_gathering.add(m_entry, m_digesting.result(), std::move(m_found));
    }

private:
    void finishBinary()
    {
        auto facts = m_pieces->facts();
        if (!facts)
            return;
        QList<CodeSignature> signatures =
            m_pieces->signatures(*facts, [this](const auto &take) { readAgain(m_gathering.source(), m_entry, take); });
        m_found.binary = PackageBinary{m_entry.path, std::move(*facts), std::move(signatures)};
    }

    const PackageEntry &m_entry;
    Gathering &m_gathering;
    bool m_keeps;
    bool m_first = true;
    std::optional<BinaryInPieces> m_pieces; ///< of a long binary
    FileDigesting m_digesting;
    FoundFacts m_found;
};

std::optional<BundleKind> bundleKind(const QString &path)
{
    const QString name = path.mid(path.lastIndexOf(u'/') + 1);
    if (name.endsWith(".appex"_L1))
        return BundleKind::Extension;
    if (name.endsWith(".framework"_L1))
        return BundleKind::Framework;
    if (name.endsWith(".bundle"_L1))
        return BundleKind::Resources;
    if (name.endsWith(".app"_L1))
        return path.contains("/Watch/"_L1) ? BundleKind::WatchApp : BundleKind::App;
    return std::nullopt;
}

class ContentsReading
{
public:
    ContentsReading(const PackageSource &source, const Gathering &gathering, PackageContents &contents)
        : m_source(source), m_gathering(gathering), m_contents(contents)
    {
    }

    void readFiles();
    void readBundles();
    void compareSeals();

private:
    QString appPath() const;
    PackageBundle bundleAt(const QString &path, BundleKind kind) const;
    QByteArray content(const QString &path) const { return m_gathering.content(path); }
    void compareSeal(PackageBundle &bundle) const;

    const PackageSource &m_source;
    const Gathering &m_gathering;
    PackageContents &m_contents;
};

void ContentsReading::readFiles()
{
    for (const PackageEntry &entry : m_source.entries()) {
        if (entry.kind == EntryKind::Folder)
            continue;
        m_contents.files += PackageFile{entry.path, entry.size};
        m_contents.packedSize += entry.packedSize;
        const FoundFacts *found = m_gathering.found(entry);
        if (entry.kind != EntryKind::File || found == nullptr)
            continue;
        if (found->binary)
            m_contents.binaries += *found->binary;
        if (found->isStaticArchive)
            m_contents.staticArchives += entry.path;
    }
}

QString ContentsReading::appPath() const
{
    QString app;
    for (const QString &name : m_source.names(u"Payload"_s)) {
        if (name.endsWith(".app"_L1))
            app = u"Payload/"_s + name;
    }
    return app;
}

PackageBundle ContentsReading::bundleAt(const QString &path, BundleKind kind) const
{
    PackageBundle bundle;
    const BundleLayout layout = bundleLayout(m_source, path);
    bundle.path = path;
    bundle.layout = layout;
    bundle.kind = kind;
    bundle.info = propertyListDictionary(content(layout.info));
    // Without a readable Info.plist, as after a change to it, the code usually has the bundle's own name.
    const QString executable = bundle.info ? bundle.text(u"CFBundleExecutable"_s) : bundle.name().section(u'.', 0, -2);
    if (!executable.isEmpty() && !executable.contains(u'/'))
        bundle.executable = layout.code + u'/' + executable;
    for (qsizetype i = 0; i < m_contents.binaries.size(); ++i) {
        if (m_contents.binaries[i].path == bundle.executable)
            bundle.binary = i;
    }
    if (kind != BundleKind::Resources)
        bundle.localized = readLocalizedInfo(
            m_source.names(layout.resources),
            [this, &folder = layout.resources](const QString &file) { return content(folder + u'/' + file); });
    const QString profile = bundle.profilePath();
    bundle.hasProfileFile = m_contents.holds(profile);
    bundle.profile = readProvisioningProfile(content(profile));
    bundle.catalog = readAssetCatalog(content(layout.resources + u"/Assets.car"));
    const QString privacy = bundle.privacyPath();
    bundle.hasPrivacyFile = m_contents.holds(privacy);
    if (const auto list = propertyListDictionary(content(privacy)))
        bundle.privacy = readPrivacyManifest(*list);
    return bundle;
}

void ContentsReading::readBundles()
{
    const QString app = appPath();
    if (app.isEmpty())
        return;
    m_contents.bundles += bundleAt(app, BundleKind::App);
    for (const PackageEntry &entry : m_source.entries()) {
        if (entry.kind != EntryKind::Folder || !entry.path.startsWith(app + u'/'))
            continue;
        if (const auto kind = bundleKind(entry.path))
            m_contents.bundles += bundleAt(entry.path, *kind);
    }
}

void ContentsReading::compareSeal(PackageBundle &bundle) const
{
    const QString start = bundle.layout.root + u'/';
    const QByteArray bytes = content(start + u"_CodeSignature/CodeResources");
    const CodeSignature *signature = m_contents.signatureOf(bundle);
    if (signature == nullptr)
        return;
    const QByteArray info = content(bundle.layout.info);
    const PackageBinary &binary = m_contents.binaries[bundle.binary];
    bundle.seal.infoBound = true;
    bundle.seal.sealBound = true;
    for (const CodeSignature &each : binary.signatures) {
        for (const CodeDirectory &directory : each.directories) {
            bundle.seal.infoBound = bundle.seal.infoBound && directory.binds(SignatureSlot::InfoPlist, info);
            bundle.seal.sealBound = bundle.seal.sealBound && directory.binds(SignatureSlot::CodeResources, bytes);
        }
    }
    const auto seal = readResourceSeal(bytes);
    if (!seal)
        return;
    bundle.seal.present = true;
    QMap<QStringView, BundleFile> files;
    for (const PackageEntry &entry : m_source.entries()) {
        if (entry.kind == EntryKind::Folder || !entry.path.startsWith(start))
            continue;
        files.insert(files.cend(), QStringView(entry.path).sliced(start.size()),
                     {m_gathering.digests(entry), entry.linkTarget, entry.kind == EntryKind::Link});
    }
    SealSubject subject{bundle.executable.mid(start.size()), {}};
    for (const PackageBundle &nested : m_contents.bundles) {
        const CodeSignature *code = m_contents.signatureOf(nested);
        if (code == nullptr || !nested.path.startsWith(start))
            continue;
        for (const CodeDirectory &directory : code->directories)
            subject.nestedHashes[nested.path.mid(start.size())] += directory.shortHash;
    }
    for (const PackageBinary &nested : m_contents.binaries) {
        if (!nested.path.startsWith(start))
            continue;
        for (const CodeSignature &code : nested.signatures) {
            for (const CodeDirectory &directory : code.directories)
                subject.nestedHashes[nested.path.mid(start.size())] += directory.shortHash;
        }
    }
    bundle.seal.findings = compareWithSeal(*seal, files, subject);
}

void ContentsReading::compareSeals()
{
    for (PackageBundle &bundle : m_contents.bundles)
        compareSeal(bundle);
}

} // namespace

const PackageBinary *PackageContents::binaryOf(const PackageBundle &bundle) const
{
    return bundle.binary < 0 ? nullptr : &binaries[bundle.binary];
}

const CodeSignature *PackageContents::signatureOf(const PackageBundle &bundle) const
{
    const PackageBinary *binary = binaryOf(bundle);
    return binary == nullptr || !binary->isSigned() ? nullptr : &binary->signatures.first();
}

bool PackageContents::holds(const QString &path) const
{
    return std::ranges::binary_search(files, path, {}, &PackageFile::path);
}

bool PackageContents::holdsFolder(const QString &path) const
{
    const QString start = path + u'/';
    const auto found = std::ranges::lower_bound(files, start, {}, &PackageFile::path);
    return found != files.cend() && found->path.startsWith(start);
}

PackageContents readPackageContents(const PackageSource &source, const std::stop_token &stop,
                                    const ReadingProgress &progress)
{
    Gathering gathering(source);
    WholeReading reading = source.readAll(
        [&](const PackageEntry &entry) {
            if (progress)
                progress(entry.size);
            return std::make_unique<FileConsumer>(entry, gathering);
        },
        stop);
    PackageContents contents;
    contents.reading = std::move(reading);
    contents.isArchive = source.path().endsWith(".ipa"_L1);
    ContentsReading work(source, gathering, contents);
    work.readFiles();
    work.readBundles();
    work.compareSeals();
    return contents;
}

} // namespace lumora
