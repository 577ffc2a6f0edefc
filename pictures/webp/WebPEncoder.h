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

/// How a WebP picture is compressed: without loss unless a quality from 0 (smallest) to 100 (best) is given.
struct WebPOptions
{
    std::optional<int> quality;
};

/// The picture as a WebP file, with its transparency if it has any. It has no profile, which means sRGB. The same
/// version of libwebp gives the same bytes on every run. Fails with `TooLarge` beyond `longestWebPEdge`; `name` is the
/// subject of a failure.
Result<QByteArray> encodeWebP(const QImage &picture, const WebPOptions &options, const QString &name);

} // namespace lumora
