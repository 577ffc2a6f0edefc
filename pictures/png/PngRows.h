// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

#include <cstdint>
#include <span>

namespace lumora
{

/// The source of an encoder's pixels: a picture that need not be in memory as a whole.
class PngRows
{
public:
    virtual ~PngRows() = default;

    /// In pixels; not empty.
    virtual QSize size() const = 0;
    /// Writes one row as straight RGBA, 4 bytes a pixel; `rgba` is exactly one row long. Called in any order, for some
    /// rows several times, from several threads at once.
    virtual void readRow(int row, std::span<std::uint8_t> rgba) const = 0;
};

/// The rows of a picture. A picture in another format than `Format_RGBA8888` is copied; throws
/// `std::bad_alloc` if memory runs out.
class ImageRows final : public PngRows
{
public:
    explicit ImageRows(QImage picture);

    QSize size() const override { return m_picture.size(); }
    void readRow(int row, std::span<std::uint8_t> rgba) const override;

private:
    const QImage m_picture; ///< straight RGBA
};

} // namespace lumora
