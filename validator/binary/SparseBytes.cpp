// SPDX-License-Identifier: MIT
#include "SparseBytes.h"

#include <cstring>

#include <sys/mman.h>
#include <unistd.h>

namespace lumora
{

SparseBytes::~SparseBytes()
{
    if (m_bytes != nullptr)
        ::munmap(m_bytes, m_size);
}

bool SparseBytes::reserve(quint64 size)
{
    if (size == 0)
        return true;
    void *bytes = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (bytes == MAP_FAILED)
        return false;
    // One kept byte would otherwise take 2 MiB.
    ::madvise(bytes, size, MADV_NOHUGEPAGE);
    m_bytes = static_cast<char *>(bytes);
    m_size = size;
    return true;
}

void SparseBytes::write(quint64 offset, QByteArrayView bytes)
{
    Q_ASSERT(offset <= m_size && static_cast<quint64>(bytes.size()) <= m_size - offset);
    if (!bytes.isEmpty())
        std::memcpy(m_bytes + offset, bytes.data(), static_cast<std::size_t>(bytes.size()));
}

quint64 SparseBytes::release(quint64 offset, quint64 length)
{
    const quint64 page = pageSize();
    const quint64 first = (offset + page - 1) / page * page;
    const quint64 end = (offset + length) / page * page;
    if (first >= end || ::madvise(m_bytes + first, end - first, MADV_DONTNEED) != 0)
        return 0;
    return end - first;
}

quint64 SparseBytes::pageSize()
{
    static const auto size = static_cast<quint64>(::sysconf(_SC_PAGESIZE));
    return size;
}

} // namespace lumora
