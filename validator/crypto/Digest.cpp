// SPDX-License-Identifier: MIT
#include "Digest.h"

#include "OpenSsl.h"

#include <algorithm>

namespace lumora
{

namespace
{

const EVP_MD *algorithm(DigestKind kind)
{
    switch (kind) {
    case DigestKind::Sha1:
        return openSsl().EVP_sha1();
    case DigestKind::Sha256:
    case DigestKind::Sha256Truncated:
        return openSsl().EVP_sha256();
    case DigestKind::Sha384:
        return openSsl().EVP_sha384();
    case DigestKind::Sha512:
        return openSsl().EVP_sha512();
    case DigestKind::None:
        break;
    }
    return nullptr;
}

} // namespace

void loadCryptoLibrary()
{
    openSsl();
}

qsizetype digestSize(DigestKind kind)
{
    constexpr qsizetype truncated = 20;
    if (kind == DigestKind::Sha256Truncated)
        return truncated;
    const EVP_MD *known = algorithm(kind);
    return known == nullptr ? 0 : openSsl().EVP_MD_get_size(known);
}

void Digest::Free::operator()(evp_md_ctx_st *context) const
{
    openSsl().EVP_MD_CTX_free(context);
}

Digest::Digest(DigestKind kind) : m_kind(kind)
{
    const EVP_MD *known = algorithm(kind);
    if (known == nullptr)
        return;
    m_context.reset(openSsl().EVP_MD_CTX_new());
    if (m_context && openSsl().EVP_DigestInit_ex(m_context.get(), known, nullptr) != 1)
        m_context.reset();
}

Digest::~Digest() = default;
Digest::Digest(Digest &&) noexcept = default;
Digest &Digest::operator=(Digest &&) noexcept = default;

void Digest::add(QByteArrayView bytes)
{
    if (m_context)
        openSsl().EVP_DigestUpdate(m_context.get(), bytes.data(), static_cast<std::size_t>(bytes.size()));
}

QByteArray Digest::result()
{
    if (!m_context)
        return {};
    QByteArray value(EVP_MAX_MD_SIZE, '\0');
    unsigned length = 0;
    openSsl().EVP_DigestFinal_ex(m_context.get(), reinterpret_cast<unsigned char *>(value.data()), &length);
    m_context.reset();
    value.truncate(qMin<qsizetype>(length, digestSize(m_kind)));
    return value;
}

QByteArray Digest::of(DigestKind kind, QByteArrayView bytes)
{
    Digest digest(kind);
    digest.add(bytes);
    return digest.result();
}

void FileDigesting::add(QByteArrayView bytes)
{
    m_sha1.add(bytes);
    m_sha256.add(bytes);
}

FileDigests FileDigesting::result()
{
    const QByteArray sha1 = m_sha1.result();
    const QByteArray sha256 = m_sha256.result();
    FileDigests digests;
    std::copy_n(sha1.cbegin(), std::min<qsizetype>(sha1.size(), std::ssize(digests.sha1)), digests.sha1.begin());
    std::copy_n(sha256.cbegin(), std::min<qsizetype>(sha256.size(), std::ssize(digests.sha256)),
                digests.sha256.begin());
    return digests;
}

} // namespace lumora
