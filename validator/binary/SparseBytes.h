// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace lumora
{

/// Bytes of a long file of which only some parts are kept. The others read as zeros and take no memory.
class SparseBytes
{
public:
    SparseBytes() = default;
    ~SparseBytes();
    Q_DISABLE_COPY_MOVE(SparseBytes)

    /// Makes room for that many bytes, all zero. False if the system refuses it. Call it once.
    bool reserve(quint64 size);
    quint64 size() const { return m_size; }
    QByteArrayView bytes() const { return {m_bytes, static_cast<qsizetype>(m_size)}; }

    /// Keeps the bytes at the offset. They must fit.
    void write(quint64 offset, QByteArrayView bytes);
    /// Turns the whole pages among the bytes back into zeros without memory. Returns their bytes.
    quint64 release(quint64 offset, quint64 length);

    /// The unit in which memory is taken; bytes.
    static quint64 pageSize();

private:
    char *m_bytes = nullptr;
    quint64 m_size = 0;
};

} // namespace lumora
