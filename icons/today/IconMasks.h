// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRectF>

#include <array>

namespace lumora
{

/// The shapes to which Android's launchers cut adaptive icons.
enum class AndroidMask { Circle, Squircle, RoundedSquare, Teardrop };

inline constexpr std::array<AndroidMask, 4> androidMasks = {AndroidMask::Circle, AndroidMask::Squircle,
                                                            AndroidMask::RoundedSquare, AndroidMask::Teardrop};

/// The part of an adaptive icon's layer that a mask may show, in the middle of the layer.
QRectF adaptiveViewport(const QRectF &layer);

/// The square around the circle in an adaptive icon's layer that every mask shows.
QRectF adaptiveSafeZone(const QRectF &layer);

/// The same in a maskable picture of the web.
QRectF maskableSafeZone(const QRectF &picture);

/// The mask's outline, scaled to the viewport.
QPainterPath maskOutline(AndroidMask mask, const QRectF &viewport);

/// The rounded body of the Mac's grid in a picture of the given size.
QPainterPath macBodyOutline(const QRectF &picture);

} // namespace lumora
