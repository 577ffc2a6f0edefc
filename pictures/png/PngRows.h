// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

#include <cstdint>
#include <span>

namespace lumora
{

/// Where an encoder takes its pixels from: a picture that need not exist as a whole.
class PngRows
{
public:
    virtual ~PngRows() = default;

    /// In pixels; not empty.
    virtual QSize size() const = 0;
    /// Writes one row as straight RGBA, 4 bytes a pixel; `rgba` is exactly one row long. Rows are asked for in any
    /// order, some of them several times, from several threads at once.
    virtual void readRow(int row, std::span<std::uint8_t> rgba) const = 0;
};

/// The rows of a picture; one that is not `Format_RGBA8888` yet is made straight row by row as it is read.
class ImageRows final : public PngRows
{
public:
    explicit ImageRows(QImage picture);

    QSize size() const override { return m_picture.size(); }
    void readRow(int row, std::span<std::uint8_t> rgba) const override;

private:
    const QImage m_picture; ///< straight or premultiplied RGBA
};

} // namespace lumora
