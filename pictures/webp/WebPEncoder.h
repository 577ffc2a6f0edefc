// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QImage>

#include <optional>

namespace lumora
{

/// The longest edge that the format can hold, in pixels.
inline constexpr int longestWebPEdge = 16383;

/// How a WebP picture is packed: without loss unless a quality from 0 (smallest) to 100 (best) is given.
struct WebPOptions
{
    std::optional<int> quality;
};

/// The picture as a WebP file, with its transparency where it has any; without a profile, which means sRGB. The same
/// bytes on every run with one version of libwebp. Fails with `TooLarge` beyond `longestWebPEdge`; `name` is what the
/// failure calls the picture.
Result<QByteArray> encodeWebP(const QImage &picture, const WebPOptions &options, const QString &name);

} // namespace lumora
