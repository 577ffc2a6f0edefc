// SPDX-License-Identifier: MIT
#pragma once

#include "SignedMessage.h"
#include "SignedPages.h"
#include "validator/binary/BinaryFacts.h"
#include "validator/crypto/Digest.h"

#include <QByteArrayView>
#include <QMap>
#include <QVariantMap>

#include <optional>

namespace lumora
{

/// The blobs of a signature, by their numbers.
enum class SignatureSlot : quint32 {
    CodeDirectory = 0,
    InfoPlist = 1,
    Requirements = 2,
    CodeResources = 3,
    Application = 4,
    Entitlements = 5,
    RepresentationSpecific = 6,
    DerEntitlements = 7,
    AlternateCodeDirectory = 0x1000,
    Message = 0x10000,
};

struct CodeDirectory
{
    static constexpr quint32 adHocFlag = 0x2;
    static constexpr quint32 linkerSignedFlag = 0x20000;
    static constexpr quint64 allowUnsignedFlag = 0x10; ///< flag of the executable segment, written for get-task-allow

    quint32 version = 0;
    quint32 flags = 0;
    QString identifier;
    QString team; ///< empty if the signature has none
    DigestKind digest = DigestKind::None;
    quint64 codeLimit = 0; ///< bytes of the slice that the page hashes cover
    quint64 pageSize = 0;  ///< 0 for a single page
    quint32 pageCount = 0;
    quint64 executableFlags = 0;
    QByteArray hash;                         ///< of the directory itself
    QByteArray shortHash;                    ///< the first 20 bytes of that, which identify the code
    QMap<quint32, QByteArray> specialHashes; ///< by slot; zeros for an empty slot
    QList<quint32> brokenPages;              ///< the first 16
    bool coversCode = false;                 ///< the pages reach from the slice's start to the signature

    /// True when the slot's hash is that of the content; false for a slot without a hash or with zeros.
    bool binds(SignatureSlot slot, QByteArrayView content) const;
    /// The same for the content's digest, of the directory's kind.
    bool bindsDigest(SignatureSlot slot, QByteArrayView content) const;
    /// True when the slot has a hash that is not all zeros.
    bool hasSlot(SignatureSlot slot) const;
};

/// The faults of a signature itself, without the files around the binary.
enum class SignatureFault {
    Damaged,             ///< a blob or a table that is not inside the signature
    NestedSignature,     ///< a signature inside a signature
    NoCodeDirectory,     ///< there is no code directory
    UnknownDigest,       ///< unknown kind of hash
    PagesChanged,        ///< the code differs from the signed code
    CodeNotCovered,      ///< bytes before the signature that no hash covers
    RequirementsChanged, ///< the requirements differ from the signed ones
    EntitlementsChanged, ///< the entitlements differ from the signed ones
    DerEntitlementsChanged,
    EntitlementsDiffer, ///< the two forms of the entitlements differ
    EntitlementsUnreadable,
    MessageUnreadable,      ///< the signature message is invalid
    NoSignerCertificate,    ///< the message does not contain the signer's certificate
    MessageDigestChanged,   ///< the message is about another code directory
    MessageSignatureBroken, ///< not signed with the key of the certificate
    DirectoriesDiffer,      ///< the signed list of code directories differs from the existing ones
    SignedOutsideValidity,  ///< signed outside the certificate's time of validity
};

struct CodeSignature
{
    QList<CodeDirectory> directories; ///< the main one first
    QByteArray requirements;          ///< the whole blob
    std::optional<QVariantMap> entitlements;
    std::optional<QVariantMap> derEntitlements;
    std::optional<MessageSigner> signer; ///< empty in an ad hoc signature
    QList<SignatureFault> faults;        ///< without duplicates, in the order of the enumeration

    /// The directory with the strongest hashes; null if there is none.
    const CodeDirectory *best() const;
    bool isAdHoc() const { return !signer; }
};

/// The signature of a slice, read and checked: page hashes, bound blobs, message. `slice` is the whole slice, `range`
/// the place of its code signature. The time is proportional to the slice's length.
CodeSignature readCodeSignature(QByteArrayView slice, const FileRange &range);
/// The same for a slice of which only the signature's own bytes are there. Each directory's pages are asked for once,
/// in the same order each time.
CodeSignature readCodeSignature(QByteArrayView slice, const FileRange &range, const PageCheck &brokenPages);

} // namespace lumora
