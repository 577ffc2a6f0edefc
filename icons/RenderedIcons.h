// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>
#include <span>

namespace lumora
{

/// The PNG files of one source icon in any sizes: each size is rendered and encoded once, on all cores, the largest
/// picture's sections side by side. Holds the encoded files only, so memory stays near the source's own.
class RenderedIcons
{
public:
    explicit RenderedIcons(const QImage &icon);
    /// Drops what was prepared and not begun; waits for what was.
    ~RenderedIcons();
    RenderedIcons(const RenderedIcons &) = delete;
    RenderedIcons &operator=(const RenderedIcons &) = delete;

    /// Starts work on sizes that will be wanted and are not there yet: the largest first, the quick ones in this order.
    void prepare(std::span<const int> sizes);

    /// The icon of that edge length as a PNG file; waits until it is made. Empty for a size below 1 or a null icon.
    QByteArray png(int size);

private:
    class Workshop;
    std::unique_ptr<Workshop> m_workshop;
};

} // namespace lumora
