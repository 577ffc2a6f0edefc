// SPDX-License-Identifier: MIT
#include "CodeSignature.h"

#include "CodeDirectoryReading.h"
#include "DerEntitlements.h"
#include "validator/binary/ByteReader.h"
#include "validator/binary/FaultList.h"
#include "validator/bundle/PropertyList.h"

#include <algorithm>

namespace lumora
{

namespace
{

constexpr quint32 signatureMagic = 0xFADE0CC0;
constexpr quint32 detachedMagic = 0xFADE0CC1;
constexpr quint32 directoryMagic = 0xFADE0C02;
constexpr quint32 headSize = 8;
constexpr quint32 mostBlobs = 32;
constexpr quint32 mostAlternates = 5;

/// A blob of the signature: magic number, length, content.
struct Blob
{
    quint32 magic = 0;
    QByteArrayView whole;

    QByteArrayView content() const { return whole.isEmpty() ? QByteArrayView() : whole.sliced(headSize); }
};

class SignatureReading
{
public:
    SignatureReading(QByteArrayView slice, const FileRange &range, const PageCheck &brokenPages,
                     CodeSignature &signature)
        : m_slice(slice), m_range(range), m_brokenPages(brokenPages), m_signature(signature)
    {
    }

    void read();

private:
    void fault(SignatureFault what);
    bool readBlobs();
    void readDirectories();
    void readEntitlements();
    void readMessage();
    void checkSlot(SignatureSlot slot, SignatureFault changed);
    void checkMessage(const MessageSigner &signer);

    QByteArrayView m_slice;
    FileRange m_range;
    const PageCheck &m_brokenPages;
    CodeSignature &m_signature;
    QMap<quint32, Blob> m_blobs;
};

void SignatureReading::fault(SignatureFault what)
{
    addFault(m_signature.faults, what);
}

bool SignatureReading::readBlobs()
{
    const auto bytes = ByteReader(m_slice, ByteOrder::Big).span(m_range.offset, m_range.size);
    if (!bytes)
        return false;
    const ByteReader outer(*bytes, ByteOrder::Big);
    const auto length = outer.u32(4);
    if (outer.u32(0) != signatureMagic || !length || *length > outer.size())
        return false;
    const ByteReader reader(outer.clipped(0, *length), ByteOrder::Big);
    const auto count = reader.u32(8);
    if (!count || *count > mostBlobs)
        return false;
    bool whole = true;
    for (quint64 i = 0; i < *count; ++i) {
        const auto slot = reader.u32(12 + i * 8);
        const auto offset = reader.u32(16 + i * 8);
        const auto magic = offset ? reader.u32(*offset) : std::nullopt;
        const auto size = offset ? reader.u32(quint64{*offset} + 4) : std::nullopt;
        const auto content = size ? reader.span(*offset, *size) : std::nullopt;
        if (!slot || !magic || !content || *size < headSize || m_blobs.contains(*slot)) {
            whole = false;
            continue;
        }
        if (*magic == signatureMagic || *magic == detachedMagic) {
            fault(SignatureFault::NestedSignature);
            continue;
        }
        m_blobs.insert(*slot, {*magic, *content});
    }
    return whole;
}

void SignatureReading::readDirectories()
{
    QList<quint32> places{static_cast<quint32>(SignatureSlot::CodeDirectory)};
    for (quint32 i = 0; i < mostAlternates; ++i)
        places += static_cast<quint32>(SignatureSlot::AlternateCodeDirectory) + i;
    for (const quint32 slot : places) {
        const Blob blob = m_blobs.value(slot);
        if (blob.whole.isEmpty())
            continue;
        const auto directory =
            blob.magic == directoryMagic ? readCodeDirectory(blob.whole, m_range.offset, m_brokenPages) : std::nullopt;
        if (!directory) {
            fault(SignatureFault::Damaged);
            continue;
        }
        if (directory->digest == DigestKind::None) {
            fault(SignatureFault::UnknownDigest);
            continue;
        }
        if (!directory->brokenPages.isEmpty())
            fault(SignatureFault::PagesChanged);
        if (!directory->coversCode)
            fault(SignatureFault::CodeNotCovered);
        m_signature.directories += *directory;
    }
    if (m_signature.directories.isEmpty())
        fault(SignatureFault::NoCodeDirectory);
}

void SignatureReading::checkSlot(SignatureSlot slot, SignatureFault changed)
{
    const Blob blob = m_blobs.value(static_cast<quint32>(slot));
    for (const CodeDirectory &directory : m_signature.directories) {
        // A blob with a hash must exist, and an existing blob must have a hash.
        if (directory.hasSlot(slot) == blob.whole.isEmpty() ||
            (!blob.whole.isEmpty() && !directory.binds(slot, blob.whole)))
            fault(changed);
    }
}

void SignatureReading::readEntitlements()
{
    m_signature.requirements = m_blobs.value(static_cast<quint32>(SignatureSlot::Requirements)).whole.toByteArray();
    checkSlot(SignatureSlot::Requirements, SignatureFault::RequirementsChanged);
    checkSlot(SignatureSlot::Entitlements, SignatureFault::EntitlementsChanged);
    checkSlot(SignatureSlot::DerEntitlements, SignatureFault::DerEntitlementsChanged);
    const Blob xml = m_blobs.value(static_cast<quint32>(SignatureSlot::Entitlements));
    const Blob der = m_blobs.value(static_cast<quint32>(SignatureSlot::DerEntitlements));
    if (!xml.whole.isEmpty()) {
        m_signature.entitlements = propertyListDictionary(xml.content().toByteArray());
        if (!m_signature.entitlements)
            fault(SignatureFault::EntitlementsUnreadable);
    }
    if (!der.whole.isEmpty()) {
        m_signature.derEntitlements = entitlementsFromDer(der.content());
        if (!m_signature.derEntitlements)
            fault(SignatureFault::EntitlementsUnreadable);
    }
    if (m_signature.entitlements && m_signature.derEntitlements &&
        *m_signature.entitlements != *m_signature.derEntitlements)
        fault(SignatureFault::EntitlementsDiffer);
}

void SignatureReading::checkMessage(const MessageSigner &signer)
{
    if (!signer.certificate) {
        fault(SignatureFault::NoSignerCertificate);
        return;
    }
    if (!signer.digestMatches)
        fault(SignatureFault::MessageDigestChanged);
    if (!signer.signatureMatches)
        fault(SignatureFault::MessageSignatureBroken);
    for (const QByteArray &hash : signer.codeDirectoryHashes) {
        if (std::ranges::none_of(m_signature.directories, [&](const CodeDirectory &each) { return each.hash == hash; }))
            fault(SignatureFault::DirectoriesDiffer);
    }
    for (const QByteArray &hash : signer.shortHashes) {
        if (std::ranges::none_of(m_signature.directories,
                                 [&](const CodeDirectory &each) { return each.shortHash == hash; }))
            fault(SignatureFault::DirectoriesDiffer);
    }
    const auto &time = signer.signingTime;
    if (time && (*time < signer.certificate->validFrom || *time > signer.certificate->validUntil))
        fault(SignatureFault::SignedOutsideValidity);
}

void SignatureReading::readMessage()
{
    const Blob message = m_blobs.value(static_cast<quint32>(SignatureSlot::Message));
    const Blob directory = m_blobs.value(static_cast<quint32>(SignatureSlot::CodeDirectory));
    // An ad hoc signature has an empty message or none.
    if (message.content().isEmpty())
        return;
    m_signature.signer = readSigner(message.content(), directory.whole);
    if (!m_signature.signer)
        fault(SignatureFault::MessageUnreadable);
    else
        checkMessage(*m_signature.signer);
}

void SignatureReading::read()
{
    if (!readBlobs())
        fault(SignatureFault::Damaged);
    readDirectories();
    readEntitlements();
    readMessage();
}

} // namespace

const CodeDirectory *CodeSignature::best() const
{
    const auto strongest = std::ranges::max_element(directories, {}, &CodeDirectory::digest);
    return strongest == directories.end() ? nullptr : &*strongest;
}

CodeSignature readCodeSignature(QByteArrayView slice, const FileRange &range)
{
    return readCodeSignature(slice, range, [slice](const PageTable &table) {
        PageComparison comparison(table);
        comparison.add(slice);
        return comparison.broken();
    });
}

CodeSignature readCodeSignature(QByteArrayView slice, const FileRange &range, const PageCheck &brokenPages)
{
    CodeSignature signature;
    SignatureReading(slice, range, brokenPages, signature).read();
    return signature;
}

} // namespace lumora
