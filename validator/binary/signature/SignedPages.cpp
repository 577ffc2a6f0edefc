// SPDX-License-Identifier: MIT
#include "SignedPages.h"

#include <utility>

namespace lumora
{

quint64 PageTable::pagesWithCode() const
{
    const quint64 bytes = bytesInPage();
    return bytes == 0 ? 0 : qMin<quint64>(pageCount, codeLimit / bytes + (codeLimit % bytes == 0 ? 0 : 1));
}

QByteArrayView PageTable::hash(quint64 page) const
{
    const qsizetype size = digestSize(digest);
    return hashes.sliced(static_cast<qsizetype>(page) * size, size);
}

PageDigests::PageDigests(DigestKind digest, quint64 pageSize, quint64 codeLimit)
    : m_kind(digest), m_pageSize(pageSize), m_codeLimit(codeLimit), m_current(digest)
{
}

std::optional<QByteArray> PageDigests::take(QByteArrayView *bytes)
{
    // Dividing first: the end of a hostile last page is beyond 64 bits.
    const quint64 left = qMin(m_pageSize - m_size % m_pageSize, m_codeLimit - m_size);
    const quint64 count = qMin(left, static_cast<quint64>(bytes->size()));
    m_current.add(bytes->first(static_cast<qsizetype>(count)));
    *bytes = bytes->sliced(static_cast<qsizetype>(count));
    m_size += count;
    if (count < left)
        return std::nullopt;
    return end();
}

QByteArray PageDigests::end()
{
    return std::exchange(m_current, Digest(m_kind)).result();
}

PageComparison::PageComparison(const PageTable &table)
    : m_table(table), m_pages(table.digest, table.bytesInPage(), table.codeLimit)
{
}

bool PageComparison::isDone() const
{
    return m_page >= m_table.pagesWithCode() || m_broken.size() == brokenPagesKept;
}

void PageComparison::compare(const QByteArray &digest)
{
    if (digest != m_table.hash(m_page))
        m_broken += static_cast<quint32>(m_page);
    ++m_page;
}

void PageComparison::add(QByteArrayView bytes)
{
    while (!bytes.isEmpty() && !isDone()) {
        if (const std::optional<QByteArray> digest = m_pages.take(&bytes))
            compare(*digest);
    }
}

QList<quint32> PageComparison::broken()
{
    // What is missing is no part of its page's digest.
    while (!isDone())
        compare(m_pages.end());
    return m_broken;
}

void UsualPages::add(QByteArrayView bytes)
{
    while (!bytes.isEmpty() && m_pages.size() < m_codeLimit)
        m_digests += m_pages.take(&bytes).value_or(QByteArray());
}

bool UsualPages::answers(const PageTable &table) const
{
    return (table.digest == DigestKind::Sha256 || table.digest == DigestKind::Sha256Truncated) &&
           table.pageSize == pageSize && table.codeLimit == m_codeLimit && m_pages.size() == m_codeLimit;
}

QList<quint32> UsualPages::broken(const PageTable &table) const
{
    QList<quint32> broken;
    const qsizetype length = digestSize(DigestKind::Sha256);
    for (quint64 page = 0; page < table.pagesWithCode() && broken.size() < PageComparison::brokenPagesKept; ++page) {
        const QByteArrayView expected = table.hash(page);
        const auto at = static_cast<qsizetype>(page) * length;
        if (QByteArrayView(m_digests).sliced(at, expected.size()) != expected)
            broken += static_cast<quint32>(page);
    }
    return broken;
}

} // namespace lumora
