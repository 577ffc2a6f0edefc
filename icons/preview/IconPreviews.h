// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRectF>

#include <array>
#include <vector>

namespace lumora
{

class Motifs;

/// The places in which an icon will be seen.
enum class PreviewPlace {
    IosLight,
    IosDark,
    IosTinted,
    AndroidCircle,
    AndroidSquircle,
    AndroidRoundedSquare,
    AndroidTeardrop,
    Mac,
    WebMaskable,
};

inline constexpr std::array<PreviewPlace, 9> previewPlaces = {
    PreviewPlace::IosLight,        PreviewPlace::IosDark,
    PreviewPlace::IosTinted,       PreviewPlace::AndroidCircle,
    PreviewPlace::AndroidSquircle, PreviewPlace::AndroidRoundedSquare,
    PreviewPlace::AndroidTeardrop, PreviewPlace::Mac,
    PreviewPlace::WebMaskable};

/// The icon in such a place.
struct IconPreview
{
    PreviewPlace place = PreviewPlace::IosLight;
    QImage picture;  ///< square, premultiplied RGBA
    QRectF safeZone; ///< the circle that every mask shows, in parts of the edge; empty where nothing is masked
    /// Whether the system makes it itself, because the set will have no such picture.
    bool isMadeBySystem = false;
};

/// The sources that may be given besides the icon.
enum class FurtherSource { Dark, Tinted, Monochrome, Foreground, Background };

inline constexpr std::array<FurtherSource, 5> furtherSources = {FurtherSource::Dark, FurtherSource::Tinted,
                                                                FurtherSource::Monochrome, FurtherSource::Foreground,
                                                                FurtherSource::Background};

/// What the sets have for one of them.
struct SourcePreview
{
    FurtherSource source = FurtherSource::Dark;
    QImage picture;       ///< null where there will be none
    bool isGiven = false; ///< otherwise it is derived
};

/// Everything to be shown of some sources.
struct IconPreviews
{
    std::vector<IconPreview> places;    ///< in the order of `previewPlaces`
    std::vector<SourcePreview> sources; ///< in the order of `furtherSources`
};

/// Draws the icon in every place and every further source, `placeEdge` and `sourceEdge` pixels wide. A few
/// milliseconds for a picture; callable on any thread, uses a second one itself.
IconPreviews iconPreviews(const Motifs &motifs, int placeEdge, int sourceEdge);

} // namespace lumora
