// SPDX-License-Identifier: MIT
#include "PackageContents.h"

#include "validator/binary/MachOReader.h"
#include "validator/bundle/PropertyList.h"

#include <QHash>

#include <algorithm>
#include <mutex>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qsizetype largestBinary = qsizetype{1} << 30;
constexpr qsizetype largestKept = 64 << 20;

/// The result of reading one file of the package.
struct ReadFile
{
    QByteArray sha1;
    QByteArray sha256;
    QByteArray content; ///< only for files with facts
    std::optional<PackageBinary> binary;
    bool isStaticArchive = false;
};

bool isKept(const QString &name)
{
    static const QStringList names{u"Info.plist"_s, u"embedded.mobileprovision"_s, u"Assets.car"_s,
                                   u"PrivacyInfo.xcprivacy"_s, u"CodeResources"_s};
    return names.contains(name);
}

PackageBinary readBinary(const QString &path, const QByteArray &content, BinaryFacts facts)
{
    PackageBinary binary{path, std::move(facts), {}};
    for (const BinarySlice &slice : binary.facts.slices) {
        if (!slice.codeSignature)
            continue;
        const QByteArrayView part = QByteArrayView(content).sliced(static_cast<qsizetype>(slice.range.offset),
                                                                   static_cast<qsizetype>(slice.range.size));
        binary.signatures += readCodeSignature(part, *slice.codeSignature);
    }
    return binary;
}

/// The results of the reading threads.
struct Gathering
{
    std::mutex mutex;
    QHash<QString, ReadFile> files;
};

class FileConsumer final : public EntryConsumer
{
public:
    FileConsumer(const PackageEntry &entry, Gathering &gathering)
        : m_path(entry.path), m_gathering(gathering), m_keeps(isKept(entry.name()))
    {
    }

    void take(QByteArrayView bytes) override
    {
        m_sha1.add(bytes);
        m_sha256.add(bytes);
        if (m_first) {
            m_first = false;
            m_isBinary = isMachO(bytes);
            m_file.isStaticArchive = isStaticArchive(bytes);
        }
        const qsizetype limit = m_isBinary ? largestBinary : largestKept;
        if ((m_keeps || m_isBinary) && m_file.content.size() + bytes.size() <= limit)
            m_file.content.append(bytes);
    }

    void finish(bool) override
    {
        m_file.sha1 = m_sha1.result();
        m_file.sha256 = m_sha256.result();
        if (m_isBinary) {
            if (auto facts = readMachO(m_file.content))
                m_file.binary = readBinary(m_path, m_file.content, std::move(*facts));
            m_file.content.clear();
        }
        const std::lock_guard lock(m_gathering.mutex);
        m_gathering.files.insert(m_path, std::move(m_file));
    }

private:
    QString m_path;
    Gathering &m_gathering;
    bool m_keeps;
    bool m_first = true;
    bool m_isBinary = false;
    Digest m_sha1{DigestKind::Sha1};
    Digest m_sha256{DigestKind::Sha256};
    ReadFile m_file;
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
    QByteArray content(const QString &path) const { return m_gathering.files.value(path).content; }
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
        m_contents.paths += entry.path;
        m_contents.sizes.insert(entry.path, entry.size);
        m_contents.packedSize += entry.packedSize;
        const auto file = m_gathering.files.constFind(entry.path);
        if (entry.kind != EntryKind::File || file == m_gathering.files.cend())
            continue;
        if (file->binary)
            m_contents.binaries += *file->binary;
        if (file->isStaticArchive)
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
    bundle.path = path;
    bundle.kind = kind;
    bundle.info = propertyListDictionary(content(path + u"/Info.plist"));
    const QString executable = bundle.text(u"CFBundleExecutable"_s);
    if (!executable.isEmpty() && !executable.contains(u'/'))
        bundle.executable = path + u'/' + executable;
    for (qsizetype i = 0; i < m_contents.binaries.size(); ++i) {
        if (m_contents.binaries[i].path == bundle.executable)
            bundle.binary = i;
    }
    const QString profile = path + u"/embedded.mobileprovision";
    bundle.hasProfileFile = m_contents.holds(profile);
    bundle.profile = readProvisioningProfile(content(profile));
    bundle.catalog = readAssetCatalog(content(path + u"/Assets.car"));
    const QString privacy = path + u"/PrivacyInfo.xcprivacy";
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
    const QString start = bundle.path + u'/';
    const QByteArray bytes = content(start + u"_CodeSignature/CodeResources");
    const CodeSignature *signature = m_contents.signatureOf(bundle);
    if (signature == nullptr)
        return;
    const QByteArray info = content(start + u"Info.plist");
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
    QMap<QString, BundleFile> files;
    for (const PackageEntry &entry : m_source.entries()) {
        if (entry.kind == EntryKind::Folder || !entry.path.startsWith(start))
            continue;
        const ReadFile read = m_gathering.files.value(entry.path);
        files.insert(entry.path.mid(start.size()),
                     {read.sha1, read.sha256, entry.linkTarget, entry.kind == EntryKind::Link});
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

QString PackageBundle::text(const QString &key) const
{
    const QVariant value = info ? info->value(key) : QVariant();
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return value.toString();
    default:
        return {};
    }
}

const PackageBinary *PackageContents::binaryOf(const PackageBundle &bundle) const
{
    return bundle.binary < 0 ? nullptr : &binaries[bundle.binary];
}

const CodeSignature *PackageContents::signatureOf(const PackageBundle &bundle) const
{
    const PackageBinary *binary = binaryOf(bundle);
    return binary == nullptr || !binary->isSigned() ? nullptr : &binary->signatures.first();
}

bool PackageContents::holdsFolder(const QString &path) const
{
    const auto found = sizes.lowerBound(path + u'/');
    return found != sizes.cend() && found.key().startsWith(path + u'/');
}

PackageContents readPackageContents(const PackageSource &source, const std::stop_token &stop)
{
    Gathering gathering;
    WholeReading reading = source.readAll(
        [&](const PackageEntry &entry) { return std::make_unique<FileConsumer>(entry, gathering); }, stop);
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
