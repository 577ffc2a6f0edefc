// SPDX-License-Identifier: MIT
#include "SignedMessage.h"

#include "DerElement.h"
#include "validator/bundle/PropertyList.h"
#include "validator/crypto/Digest.h"
#include "validator/crypto/OpenSsl.h"

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct FreeCertificate
{
    void operator()(X509 *certificate) const { openSsl().X509_free(certificate); }
};
using CertificatePointer = std::unique_ptr<X509, FreeCertificate>;

constexpr qsizetype largestMessage = 1 << 20;
constexpr qsizetype mostCertificates = 16;

constexpr QByteArrayView messageDigestIdentifier("\x2A\x86\x48\x86\xF7\x0D\x01\x09\x04");
constexpr QByteArrayView signingTimeIdentifier("\x2A\x86\x48\x86\xF7\x0D\x01\x09\x05");
constexpr QByteArrayView hashListIdentifier("\x2A\x86\x48\x86\xF7\x63\x64\x09\x01");
constexpr QByteArrayView hashSetIdentifier("\x2A\x86\x48\x86\xF7\x63\x64\x09\x02");

constexpr quint8 context0 = 0xA0;
constexpr quint8 plainContext0 = 0x80;

/// 1.3.14.3.2.26 and 2.16.840.1.101.3.4.2.{1,2,3}.
DigestKind digestNamed(QByteArrayView identifier)
{
    if (identifier == QByteArrayView("\x2B\x0E\x03\x02\x1A"))
        return DigestKind::Sha1;
    constexpr QByteArrayView family("\x60\x86\x48\x01\x65\x03\x04\x02");
    if (identifier.size() != family.size() + 1 || !identifier.startsWith(family))
        return DigestKind::None;
    switch (identifier.back()) {
    case 1:
        return DigestKind::Sha256;
    case 2:
        return DigestKind::Sha384;
    case 3:
        return DigestKind::Sha512;
    default:
        return DigestKind::None;
    }
}

const EVP_MD *algorithm(DigestKind kind)
{
    switch (kind) {
    case DigestKind::Sha1:
        return openSsl().EVP_sha1();
    case DigestKind::Sha384:
        return openSsl().EVP_sha384();
    case DigestKind::Sha512:
        return openSsl().EVP_sha512();
    default:
        return openSsl().EVP_sha256();
    }
}

CertificatePointer certificateFrom(QByteArrayView der)
{
    const auto *bytes = reinterpret_cast<const unsigned char *>(der.data());
    CertificatePointer certificate(openSsl().d2i_X509(nullptr, &bytes, static_cast<long>(der.size())));
    openSsl().ERR_clear_error();
    return certificate;
}

QString nameEntry(const X509_NAME *name, int nid)
{
    const int at = openSsl().X509_NAME_get_index_by_NID(name, nid, -1);
    if (at < 0)
        return {};
    unsigned char *text = nullptr;
    const int length = openSsl().ASN1_STRING_to_UTF8(
        &text, openSsl().X509_NAME_ENTRY_get_data(openSsl().X509_NAME_get_entry(name, at)));
    openSsl().ERR_clear_error();
    if (length < 0)
        return {};
    const QString value = QString::fromUtf8(reinterpret_cast<const char *>(text), length);
    openSsl().CRYPTO_free(text, OPENSSL_FILE, OPENSSL_LINE);
    return value;
}

QDateTime timeOf(const ASN1_TIME *time)
{
    std::tm parts = {};
    if (time == nullptr || openSsl().ASN1_TIME_to_tm(time, &parts) != 1) {
        openSsl().ERR_clear_error();
        return {};
    }
    return QDateTime(QDate(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday),
                     QTime(parts.tm_hour, parts.tm_min, parts.tm_sec), Qt::UTC);
}

/// Reads a time from an attribute.
std::optional<QDateTime> attributeTime(const DerElement &element)
{
    const auto *bytes = reinterpret_cast<const unsigned char *>(element.whole.data());
    ASN1_TIME *time = openSsl().d2i_ASN1_TIME(nullptr, &bytes, static_cast<long>(element.whole.size()));
    openSsl().ERR_clear_error();
    const QDateTime value = timeOf(time);
    openSsl().ASN1_TIME_free(time);
    return value.isValid() ? std::optional(value) : std::nullopt;
}

template <typename Value, typename Encode> QByteArray encoded(const Value *value, Encode encode)
{
    unsigned char *bytes = nullptr;
    const int length = encode(value, &bytes);
    if (length < 0)
        return {};
    QByteArray der(reinterpret_cast<const char *>(bytes), length);
    openSsl().CRYPTO_free(bytes, OPENSSL_FILE, OPENSSL_LINE);
    return der;
}

/// True when the signer refers to the certificate, by issuer and number or by key.
bool isNamedBy(X509 *certificate, const DerElement &name)
{
    if (name.tag == plainContext0) {
        const ASN1_OCTET_STRING *key = openSsl().X509_get0_subject_key_id(certificate);
        return key != nullptr && QByteArrayView(reinterpret_cast<const char *>(openSsl().ASN1_STRING_get0_data(key)),
                                                openSsl().ASN1_STRING_length(key)) == name.content;
    }
    const auto parts = derElements(name.content, 2);
    if (!parts || parts->size() != 2)
        return false;
    return encoded(openSsl().X509_get_issuer_name(certificate), openSsl().i2d_X509_NAME) == parts->first().whole &&
           encoded(openSsl().X509_get0_serialNumber(certificate), openSsl().i2d_ASN1_INTEGER) == parts->last().whole;
}

void readAttribute(const DerElement &attribute, const QByteArray &contentDigest, MessageSigner &signer)
{
    const auto parts = derElements(attribute.content, 2);
    if (!parts || parts->size() != 2)
        return;
    const QByteArrayView identifier = parts->first().content;
    const auto values = derElements(parts->last().content, 32);
    if (!values || values->isEmpty())
        return;
    const DerElement &first = values->first();
    if (identifier == messageDigestIdentifier) {
        signer.digestMatches = first.content == contentDigest;
    } else if (identifier == signingTimeIdentifier) {
        signer.signingTime = attributeTime(first);
    } else if (identifier == hashListIdentifier) {
        const auto list = propertyListDictionary(first.content.toByteArray());
        for (const QVariant &hash : list ? list->value(u"cdhashes"_s).toList() : QVariantList())
            signer.shortHashes += hash.toByteArray();
    } else if (identifier == hashSetIdentifier) {
        for (const DerElement &value : *values) {
            const auto pair = derElements(value.content, 2);
            if (pair && pair->size() == 2)
                signer.codeDirectoryHashes += pair->last().content.toByteArray();
        }
    }
}

bool signatureIsBy(X509 *certificate, DigestKind digest, const QByteArray &signedBytes, QByteArrayView signature)
{
    const std::unique_ptr<EVP_MD_CTX, decltype(openSsl().EVP_MD_CTX_free)> context(openSsl().EVP_MD_CTX_new(),
                                                                                   openSsl().EVP_MD_CTX_free);
    EVP_PKEY *key = openSsl().X509_get0_pubkey(certificate);
    const bool matches =
        key != nullptr && context != nullptr &&
        openSsl().EVP_DigestVerifyInit(context.get(), nullptr, algorithm(digest), nullptr, key) == 1 &&
        openSsl().EVP_DigestVerify(context.get(), reinterpret_cast<const unsigned char *>(signature.data()),
                                   static_cast<std::size_t>(signature.size()),
                                   reinterpret_cast<const unsigned char *>(signedBytes.constData()),
                                   static_cast<std::size_t>(signedBytes.size())) == 1;
    openSsl().ERR_clear_error();
    return matches;
}

/// From the signer's certificate to the self-signed one, or as far as the certificates lead.
void followChain(X509 *certificate, const std::vector<CertificatePointer> &all, MessageSigner &signer)
{
    X509 *current = certificate;
    for (qsizetype step = 0; current != nullptr && step < mostCertificates; ++step) {
        signer.chain += nameEntry(openSsl().X509_get_subject_name(current), NID_commonName);
        X509 *issuer = nullptr;
        for (const CertificatePointer &candidate : all) {
            if (openSsl().X509_check_issued(candidate.get(), current) == X509_V_OK &&
                openSsl().X509_verify(current, openSsl().X509_get0_pubkey(candidate.get())) == 1) {
                issuer = candidate.get();
                break;
            }
        }
        openSsl().ERR_clear_error();
        if (issuer == current) {
            signer.chainReachesRoot = true;
            signer.rootFingerprint = Digest::of(DigestKind::Sha256, encoded(current, openSsl().i2d_X509));
            return;
        }
        current = issuer;
    }
}

CertificateFacts factsOf(X509 *certificate)
{
    const X509_NAME *subject = openSsl().X509_get_subject_name(certificate);
    return {nameEntry(subject, NID_commonName),
            nameEntry(subject, NID_organizationalUnitName),
            nameEntry(subject, NID_organizationName),
            timeOf(openSsl().X509_get0_notBefore(certificate)),
            timeOf(openSsl().X509_get0_notAfter(certificate)),
            encoded(certificate, openSsl().i2d_X509)};
}

std::vector<CertificatePointer> certificatesIn(QByteArrayView content)
{
    std::vector<CertificatePointer> certificates;
    for (const DerElement &element : derElements(content, mostCertificates).value_or(QList<DerElement>())) {
        CertificatePointer certificate = certificateFrom(element.whole);
        if (certificate)
            certificates.push_back(std::move(certificate));
    }
    return certificates;
}

/// SignedData's own parts: certificates and the first signer.
struct MessageParts
{
    QByteArrayView certificates;
    DerElement signer;
};

std::optional<MessageParts> partsOf(QByteArrayView message)
{
    const auto outer = derElement(message);
    const auto info = outer ? derElements(outer->content, 2) : std::nullopt;
    if (!info || info->size() != 2 || info->last().tag != context0)
        return std::nullopt;
    const auto data = derElement(info->last().content);
    const auto parts = data ? derElements(data->content, 8) : std::nullopt;
    if (!parts || parts->size() < 4 || parts->last().tag != DerElement::set)
        return std::nullopt;
    MessageParts found;
    for (const DerElement &part : *parts) {
        if (part.tag == context0)
            found.certificates = part.content;
    }
    const auto signer = derElement(parts->last().content);
    if (!signer)
        return std::nullopt;
    found.signer = *signer;
    return found;
}

} // namespace

std::optional<CertificateFacts> readCertificate(QByteArrayView der)
{
    const CertificatePointer certificate = certificateFrom(der);
    return certificate ? std::optional(factsOf(certificate.get())) : std::nullopt;
}

std::optional<MessageSigner> readSigner(QByteArrayView message, QByteArrayView content)
{
    if (message.size() > largestMessage)
        return std::nullopt;
    const auto parts = partsOf(message);
    const auto fields = parts ? derElements(parts->signer.content, 8) : std::nullopt;
    // Version, name, digest algorithm, then attributes (if any), signature algorithm, signature.
    if (!fields || fields->size() < 5)
        return std::nullopt;
    const auto digestName = derElement(fields->at(2).content);
    const DigestKind digest = digestName ? digestNamed(digestName->content) : DigestKind::None;
    const bool hasAttributes = fields->at(3).tag == context0;
    const qsizetype signatureAt = hasAttributes ? 5 : 4;
    if (digest == DigestKind::None || fields->size() <= signatureAt)
        return std::nullopt;
    MessageSigner signer;
    const QByteArray contentDigest = Digest::of(digest, content);
    QByteArray signedBytes;
    if (hasAttributes) {
        for (const DerElement &attribute : derElements(fields->at(3).content, 64).value_or(QList<DerElement>()))
            readAttribute(attribute, contentDigest, signer);
        // The signature is over the set itself, with the tag of a set.
        signedBytes = fields->at(3).whole.toByteArray();
        signedBytes[0] = static_cast<char>(DerElement::set);
    } else {
        signer.digestMatches = true;
        signedBytes = content.toByteArray();
    }
    const std::vector<CertificatePointer> certificates = certificatesIn(parts->certificates);
    for (const CertificatePointer &certificate : certificates) {
        if (!isNamedBy(certificate.get(), fields->at(1)))
            continue;
        signer.certificate = factsOf(certificate.get());
        signer.signatureMatches =
            signatureIsBy(certificate.get(), digest, signedBytes, fields->at(signatureAt).content);
        followChain(certificate.get(), certificates, signer);
        break;
    }
    return signer;
}

} // namespace lumora
