// SPDX-License-Identifier: MIT
#pragma once

#include "BinaryFacts.h"
#include "Digest.h"
#include "SignedMessage.h"

#include <QByteArrayView>
#include <QMap>
#include <QVariantMap>

#include <optional>

namespace lumora
{

/// Blobs of a signature, by their numbers in it.
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
    static constexpr quint64 allowUnsignedFlag = 0x10; ///< of the executable segment: written for get-task-allow

    quint32 version = 0;
    quint32 flags = 0;
    QString identifier;
    QString team; ///< empty where the signature names none
    DigestKind digest = DigestKind::None;
    quint64 codeLimit = 0; ///< bytes of the slice that the page hashes cover
    quint64 pageSize = 0;  ///< 0 for one page without end
    quint32 pageCount = 0;
    quint64 executableFlags = 0;
    QByteArray hash;                         ///< of the directory itself, whole
    QByteArray shortHash;                    ///< its first 20 bytes, which names the code
    QMap<quint32, QByteArray> specialHashes; ///< by slot; zeros where nothing is bound
    QList<quint32> brokenPages;              ///< the first 16
    bool coversCode = false;                 ///< the pages reach from the slice's start to the signature

    /// True when the slot's hash is that of the content; false, too, where the slot has none or zeros.
    bool binds(SignatureSlot slot, QByteArrayView content) const;
    /// True when the slot has a hash that is not all zeros.
    bool hasSlot(SignatureSlot slot) const;
};

/// What is wrong with a signature by itself, without a look at the files around the binary.
enum class SignatureFault {
    Damaged,             ///< a blob or a table that does not lie inside the signature
    NestedSignature,     ///< a signature inside a signature
    NoCodeDirectory,     ///< nothing says what was signed
    UnknownDigest,       ///< hashes of a kind that nobody knows
    PagesChanged,        ///< the code is not what was signed
    CodeNotCovered,      ///< bytes in front of the signature that no hash covers
    RequirementsChanged, ///< not the requirements that were signed
    EntitlementsChanged, ///< not the entitlements that were signed
    DerEntitlementsChanged,
    EntitlementsDiffer, ///< the two forms of the entitlements say different things
    EntitlementsUnreadable,
    MessageUnreadable,      ///< a signature message that is none
    NoSignerCertificate,    ///< the message does not bring the certificate it is signed with
    MessageDigestChanged,   ///< the message is about another code directory
    MessageSignatureBroken, ///< not signed with the key of the certificate
    DirectoriesDiffer,      ///< the signed list of code directories is not the list of those that are there
    SignedOutsideValidity,  ///< signed before or after the certificate's time
};

struct CodeSignature
{
    QList<CodeDirectory> directories; ///< the main one first
    QByteArray requirements;          ///< the blob, whole
    std::optional<QVariantMap> entitlements;
    std::optional<QVariantMap> derEntitlements;
    std::optional<MessageSigner> signer; ///< nothing in an ad hoc signature
    QList<SignatureFault> faults;        ///< each once, in the order of the enumeration

    /// The directory with the strongest hashes; null without any.
    const CodeDirectory *best() const;
    bool isAdHoc() const { return !signer; }
};

/// The signature of a slice, read and checked: page hashes, bound blobs, message. `slice` is the whole slice, `range`
/// its code signature's place in it. Time is bounded by the slice's length, a fixed number of times.
CodeSignature readCodeSignature(QByteArrayView slice, const FileRange &range);

} // namespace lumora
