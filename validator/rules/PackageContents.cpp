// SPDX-License-Identifier: MIT
#include "FileGathering.h"

#include "validator/bundle/PropertyList.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

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

/// The path of the app; empty when there is none.
QString appPath(const PackageSource &source)
{
    QString app;
    for (const QString &name : source.names(u"Payload"_s)) {
        if (name.endsWith(".app"_L1))
            app = u"Payload/"_s + name;
    }
    return app;
}

class ContentsReading
{
public:
    ContentsReading(const PackageSource &source, const FileGathering &gathering, PackageContents &contents)
        : m_source(source), m_gathering(gathering), m_contents(contents)
    {
    }

    void readFiles();
    void readBundles();
    void compareSeals();

private:
    PackageBundle bundleAt(const QString &path, BundleKind kind) const;
    QByteArray content(const QString &path) const { return m_gathering.content(path); }
    bool binds(const PackageBinary &binary, SignatureSlot slot, const QString &path) const;
    SealSubject sealSubject(const PackageBundle &bundle) const;
    void compareSeal(PackageBundle &bundle);

    const PackageSource &m_source;
    const FileGathering &m_gathering;
    PackageContents &m_contents;
    quint64 m_sealRoom = 2 * SealReader::mostBytes; ///< of all bundles' seals; bytes
};

void ContentsReading::readFiles()
{
    m_contents.files.reserve(m_source.entries().size());
    for (const PackageEntry &entry : m_source.entries()) {
        if (entry.kind == EntryKind::Folder)
            continue;
        m_contents.files += PackageFile{entry.path, entry.size};
        m_contents.packedSize += entry.packedSize;
        if (m_gathering.isLeftOut(entry))
            m_contents.unread += entry.path;
        const FoundFacts *found = m_gathering.found(entry);
        if (entry.kind != EntryKind::File || found == nullptr)
            continue;
        if (found->binary)
            m_contents.binaries += *found->binary;
        if (found->isStaticArchive)
            m_contents.staticArchives += entry.path;
    }
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
    if (const PackageEntry *catalog = m_source.find(layout.resources + u"/Assets.car"); catalog != nullptr) {
        const FoundFacts *found = m_gathering.found(*catalog);
        bundle.catalog = found == nullptr ? std::nullopt : found->catalog;
    }
    const QString privacy = bundle.privacyPath();
    bundle.hasPrivacyFile = m_contents.holds(privacy);
    if (const auto list = propertyListDictionary(content(privacy)))
        bundle.privacy = readPrivacyManifest(*list);
    return bundle;
}

void ContentsReading::readBundles()
{
    const QString app = appPath(m_source);
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

/// Whether every code directory's slot has the hash of the file.
bool ContentsReading::binds(const PackageBinary &binary, SignatureSlot slot, const QString &path) const
{
    for (const CodeSignature &each : binary.signatures) {
        for (const CodeDirectory &directory : each.directories) {
            if (!directory.bindsDigest(slot, m_gathering.digest(path, directory.digest)))
                return false;
        }
    }
    return true;
}

SealSubject ContentsReading::sealSubject(const PackageBundle &bundle) const
{
    const QString start = bundle.layout.root + u'/';
    SealSubject subject{bundle.executable.mid(start.size()), {}};
    const auto add = [&](const QString &path, const CodeSignature &code) {
        for (const CodeDirectory &directory : code.directories)
            subject.nestedHashes[path.mid(start.size())] += directory.shortHash;
    };
    for (const PackageBundle &nested : m_contents.bundles) {
        const CodeSignature *code = m_contents.signatureOf(nested);
        if (code != nullptr && nested.path.startsWith(start))
            add(nested.path, *code);
    }
    for (const PackageBinary &nested : m_contents.binaries) {
        if (!nested.path.startsWith(start))
            continue;
        for (const CodeSignature &code : nested.signatures)
            add(nested.path, code);
    }
    return subject;
}

void ContentsReading::compareSeal(PackageBundle &bundle)
{
    if (m_contents.signatureOf(bundle) == nullptr)
        return;
    const QString start = bundle.layout.root + u'/';
    const QString sealPath = start + u"_CodeSignature/CodeResources";
    const PackageBinary &binary = m_contents.binaries[bundle.binary];
    bundle.seal.infoBound = binds(binary, SignatureSlot::InfoPlist, bundle.layout.info);
    bundle.seal.sealBound = binds(binary, SignatureSlot::CodeResources, sealPath);
    const PackageEntry *seal = m_source.find(sealPath);
    if (seal == nullptr || seal->kind == EntryKind::Folder)
        return;
    if (seal->size > m_sealRoom) {
        bundle.seal.findings.state = SealState::TooLarge;
        return;
    }
    m_sealRoom -= seal->size;
    std::vector<BundleFile> files;
    const QList<PackageEntry> &entries = m_source.entries();
    const auto first = std::ranges::lower_bound(entries, start, {}, &PackageEntry::path);
    const auto isOfBundle = [&start](const PackageEntry &each) { return each.path.startsWith(start); };
    const auto last = std::find_if_not(first, entries.cend(), isOfBundle);
    files.reserve(static_cast<std::size_t>(last - first));
    for (auto entry = first; entry != last; ++entry) {
        if (entry->kind != EntryKind::Folder)
            files.push_back({QStringView(entry->path).sliced(start.size()), m_gathering.digests(*entry),
                             entry->linkTarget, entry->kind == EntryKind::Link});
    }
    SealComparison comparison(std::move(files), sealSubject(bundle));
    readEntry(m_source, *seal, [&](QByteArrayView bytes) { return comparison.take(bytes); });
    bundle.seal.findings = comparison.findings();
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
    const QString app = appPath(source);
    FileGathering gathering(source,
                            app.isEmpty() ? QString() : QString(bundleLayout(source, app).resources + u"/Assets.car"));
    WholeReading reading = source.readAll(
        [&](const PackageEntry &entry) {
            if (progress)
                progress(entry.size);
            return gathering.consumerFor(entry);
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
