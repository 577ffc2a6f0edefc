// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace lumora
{

/// What a certificate says of its owner.
struct CertificateFacts
{
    QString commonName;
    QString organizationalUnit; ///< the team, in those that developers get
    QString organization;
    QDateTime validFrom; ///< UTC
    QDateTime validUntil;
    QByteArray der;
};

/// Nothing when the bytes are no certificate.
std::optional<CertificateFacts> readCertificate(QByteArrayView der);

/// The first signer of a CMS message.
struct MessageSigner
{
    std::optional<CertificateFacts> certificate; ///< nothing when the message does not bring it
    std::optional<QDateTime> signingTime;        ///< as the signer says it, UTC
    /// The signed attributes' digest is that of the content.
    bool digestMatches = false;
    /// The signature is the certificate's over the signed attributes, byte for byte as they are written: genuine
    /// messages hold sets that are not in order, which putting them in order would break.
    bool signatureMatches = false;
    QStringList chain;             ///< common names from the signer's certificate up, as far as the message brings them
    bool chainReachesRoot = false; ///< the last of them has signed itself
    QByteArray rootFingerprint;    ///< SHA-256 of that one
    QList<QByteArray> codeDirectoryHashes; ///< 1.2.840.113635.100.9.2: whole digests
    QList<QByteArray> shortHashes;         ///< 1.2.840.113635.100.9.1: digests cut to 20 bytes
};

/// The signer of a message in DER or BER over content that lies outside of it; nothing when the bytes are no message.
std::optional<MessageSigner> readSigner(QByteArrayView message, QByteArrayView content);

} // namespace lumora
