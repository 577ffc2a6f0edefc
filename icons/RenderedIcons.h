// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QImage>

#include <memory>
#include <span>

namespace lumora
{

/// The PNG files of one source icon in any sizes. Each size is rendered and encoded once, on all cores; the sections of
/// the largest pictures are encoded in parallel. Keeps only the encoded files, so it needs little more memory than the
/// source.
class RenderedIcons
{
public:
    explicit RenderedIcons(const QImage &icon);
    /// Drops the sizes that were prepared but not begun; waits for those that were begun.
    ~RenderedIcons();
    RenderedIcons(const RenderedIcons &) = delete;
    RenderedIcons &operator=(const RenderedIcons &) = delete;

    /// Starts work on sizes that will be needed: the largest first, the quick ones in this order.
    void prepare(std::span<const int> sizes);

    /// The icon of that edge length as a PNG file; waits until it is made. Fails with `InvalidValue` for a size below 1
    /// and for a null icon, with `TooLarge` if memory runs out; the caller adds the subject.
    Result<QByteArray> png(int size);

private:
    class Workshop;
    std::unique_ptr<Workshop> m_workshop;
};

} // namespace lumora
