// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

namespace lumora
{

/// Scales a straight `Format_RGBA8888` picture that is not opaque to another of that format, by way of premultiplied
/// 16-bit planes. Pixels that come out fully transparent are transparent black. Neither picture is empty.
QImage resampleTranslucent(const QImage &source, QSize size);

} // namespace lumora
