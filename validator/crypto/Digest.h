// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <array>
#include <memory>

struct evp_md_ctx_st;

namespace lumora
{

/// The numbers are those of code signatures.
enum class DigestKind : quint8 { None = 0, Sha1 = 1, Sha256 = 2, Sha256Truncated = 3, Sha384 = 4, Sha512 = 5 };

/// The length of a digest in bytes; 0 for None.
qsizetype digestSize(DigestKind kind);

/// Loads the library for digests and signatures now instead of at its first use. Call it before the process locks
/// itself out of the file system.
void loadCryptoLibrary();

/// Computes a digest of content that comes piece by piece.
class Digest
{
public:
    explicit Digest(DigestKind kind);
    ~Digest();
    Digest(Digest &&) noexcept;
    Digest &operator=(Digest &&) noexcept;

    void add(QByteArrayView bytes);
    /// The digest; empty for None. Call it once.
    QByteArray result();

    static QByteArray of(DigestKind kind, QByteArrayView bytes);

private:
    struct Free
    {
        void operator()(evp_md_ctx_st *context) const;
    };
    DigestKind m_kind;
    std::unique_ptr<evp_md_ctx_st, Free> m_context;
};

/// The two digests that seals give of a file, without memory of their own: a package may have 100,000 files.
struct FileDigests
{
    std::array<char, 20> sha1{};
    std::array<char, 32> sha256{};
};

/// Computes both digests of content that comes piece by piece.
class FileDigesting
{
public:
    void add(QByteArrayView bytes);
    /// The digests. Call it once.
    FileDigests result();

private:
    Digest m_sha1{DigestKind::Sha1};
    Digest m_sha256{DigestKind::Sha256};
};

} // namespace lumora
