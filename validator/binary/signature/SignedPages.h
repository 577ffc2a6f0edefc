// SPDX-License-Identifier: MIT
#pragma once

#include "validator/crypto/Digest.h"

#include <QByteArrayView>
#include <QList>

#include <functional>
#include <optional>

namespace lumora
{

/// The hashes of a code directory for the pages of its slice.
struct PageTable
{
    DigestKind digest = DigestKind::None;
    quint64 pageSize = 0;  ///< bytes; 0 for a single page
    quint64 codeLimit = 0; ///< the pages cover this many bytes from the slice's start
    quint32 pageCount = 0;
    QByteArrayView hashes; ///< one after the other; belongs to the signature

    quint64 bytesInPage() const { return pageSize == 0 ? codeLimit : pageSize; }
    /// The number of pages that have bytes and a hash.
    quint64 pagesWithCode() const;
    QByteArrayView hash(quint64 page) const;
};

/// Cuts the bytes of a slice, which come piece by piece, into pages and digests each.
class PageDigests
{
public:
    /// All in bytes; the last page ends at the limit.
    PageDigests(DigestKind digest, quint64 pageSize, quint64 codeLimit);

    /// The number of bytes taken; the limit is never passed.
    quint64 size() const { return m_size; }
    /// Moves bytes of the current page from the front of `bytes`; the digest once the page is whole. Call it only below
    /// the limit.
    std::optional<QByteArray> take(QByteArrayView *bytes);
    /// Ends the current page early: the digest of what has come of it.
    QByteArray end();

private:
    DigestKind m_kind;
    quint64 m_pageSize;
    quint64 m_codeLimit;
    quint64 m_size = 0;
    Digest m_current;
};

/// Compares the pages of a slice with their hashes, while its bytes come piece by piece.
class PageComparison
{
public:
    /// More broken pages are not listed.
    static constexpr qsizetype brokenPagesKept = 16;

    explicit PageComparison(const PageTable &table);

    /// The next bytes of the slice; those behind the code limit are left out.
    void add(QByteArrayView bytes);
    /// The numbers of the first broken pages; a page without all its bytes is broken. Call it once.
    QList<quint32> broken();

private:
    void compare(const QByteArray &digest);
    bool isDone() const;

    PageTable m_table;
    PageDigests m_pages;
    quint64 m_page = 0;
    QList<quint32> m_broken;
};

/// The digests of the pages of the usual signature (SHA-256, pages of 4 KiB), computed before the signature is known,
/// which comes after the code.
class UsualPages
{
public:
    explicit UsualPages(quint64 codeLimit) : m_codeLimit(codeLimit), m_pages(DigestKind::Sha256, pageSize, codeLimit) {}

    void add(QByteArrayView bytes);
    /// Whether the table is of the usual kind for this code, all of which has come.
    bool answers(const PageTable &table) const;
    /// The numbers of the first broken pages of a table that it answers.
    QList<quint32> broken(const PageTable &table) const;

private:
    static constexpr quint64 pageSize = 4096;

    quint64 m_codeLimit;
    PageDigests m_pages;
    QByteArray m_digests;
};

/// Finds the broken pages of a table, at most `PageComparison::brokenPagesKept`.
using PageCheck = std::function<QList<quint32>(const PageTable &)>;

} // namespace lumora
