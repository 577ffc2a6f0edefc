// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRectF>

#include <array>

namespace lumora
{

/// The shapes that Android's launchers cut adaptive icons to.
enum class AndroidMask { Circle, Squircle, RoundedSquare, Teardrop };

inline constexpr std::array<AndroidMask, 4> androidMasks = {AndroidMask::Circle, AndroidMask::Squircle,
                                                            AndroidMask::RoundedSquare, AndroidMask::Teardrop};

/// The part of an adaptive icon's layer that a mask may show, in the middle of the layer.
QRectF adaptiveViewport(const QRectF &layer);

/// The circle's square in an adaptive icon's layer that every mask shows.
QRectF adaptiveSafeZone(const QRectF &layer);

/// The same in a maskable picture of the web.
QRectF maskableSafeZone(const QRectF &picture);

/// The mask's outline, as large as the viewport that it is given.
QPainterPath maskOutline(AndroidMask mask, const QRectF &viewport);

/// The rounded body of the Mac's grid in a picture of that size.
QPainterPath macBodyOutline(const QRectF &picture);

} // namespace lumora
