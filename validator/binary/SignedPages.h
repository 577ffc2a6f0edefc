// SPDX-License-Identifier: MIT
#pragma once

#include "validator/crypto/Digest.h"

#include <QByteArrayView>
#include <QList>

#include <functional>

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

/// Compares the pages of a slice with their hashes, while its bytes come piece by piece.
class PageComparison
{
public:
    /// More broken pages are not listed.
    static constexpr qsizetype brokenPagesKept = 16;

    explicit PageComparison(const PageTable &table) : m_table(table), m_current(table.digest) {}

    /// The next bytes of the slice; those behind the code limit are left out.
    void add(QByteArrayView bytes);
    /// The numbers of the first broken pages; a page without all its bytes is broken. Call it once.
    QList<quint32> broken();

private:
    void endPage();
    bool isDone() const;

    PageTable m_table;
    Digest m_current;
    quint64 m_at = 0; ///< of the next byte in the slice
    quint64 m_page = 0;
    QList<quint32> m_broken;
};

/// The digests of the pages of the usual signature (SHA-256, pages of 4 KiB), computed before the signature is known,
/// which stands behind the code.
class UsualPages
{
public:
    explicit UsualPages(quint64 codeLimit) : m_codeLimit(codeLimit) {}

    void add(QByteArrayView bytes);
    /// Whether the table is of the usual kind for this code, all of which has come.
    bool answers(const PageTable &table) const;
    /// The numbers of the first broken pages of a table that it answers.
    QList<quint32> broken(const PageTable &table) const;

private:
    static constexpr quint64 pageSize = 4096;

    void endPage();

    quint64 m_codeLimit;
    quint64 m_at = 0;
    Digest m_current{DigestKind::Sha256};
    QByteArray m_digests;
};

/// Finds the broken pages of a table, at most `PageComparison::brokenPagesKept`.
using PageCheck = std::function<QList<quint32>(const PageTable &)>;

} // namespace lumora
