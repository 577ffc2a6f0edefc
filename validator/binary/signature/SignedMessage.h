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

/// The facts of a certificate about its owner.
struct CertificateFacts
{
    QString commonName;
    QString organizationalUnit; ///< the team, in developers' certificates
    QString organization;
    QDateTime validFrom; ///< UTC
    QDateTime validUntil;
    QByteArray der;
};

/// Empty when the bytes are not a certificate.
std::optional<CertificateFacts> readCertificate(QByteArrayView der);

/// The first signer of a CMS message.
struct MessageSigner
{
    std::optional<CertificateFacts> certificate; ///< empty when the message does not contain it
    std::optional<QDateTime> signingTime;        ///< as the signer states it, UTC
    /// The signed attributes' digest is that of the content.
    bool digestMatches = false;
    /// The signature matches the certificate's key and the signed attributes, byte for byte as written: genuine
    /// messages contain unsorted sets, and sorting them would break the signature.
    bool signatureMatches = false;
    QStringList chain;                     ///< common names from the signer's up, as far as the message contains them
    bool chainReachesRoot = false;         ///< the last of them is self-signed
    QByteArray rootFingerprint;            ///< SHA-256 of that certificate
    QList<QByteArray> codeDirectoryHashes; ///< 1.2.840.113635.100.9.2: whole digests
    QList<QByteArray> shortHashes;         ///< 1.2.840.113635.100.9.1: digests cut to 20 bytes
};

/// The signer of a message in DER or BER over detached content; empty when the bytes are not a message.
std::optional<MessageSigner> readSigner(QByteArrayView message, QByteArrayView content);

} // namespace lumora
