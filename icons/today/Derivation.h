// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

namespace lumora
{

/// What is derived from the given pictures because it is not given itself, or is left out.
enum class Derivation {
    Fitted,
    NotDrawn,
    IconFlattened,
    TintedFromIcon,
    TintedOnBlack,
    DarkIsIcon,
    DarkLeftOut,
    ForegroundFromIcon,
    BackgroundFromBorder,
    BackgroundWhite,
    MonochromeFromIcon,
    MonochromeLeftOut,
    WebOnBackground,
    BackLayerFlattened,
    ShelfFromLayers,
    LayersFromIcon,
    ScalableLeftOut,
    OnlyIconSet,
    BackgroundKept,
    SettingsNotRead,
};

struct DerivationText
{
    Derivation derivation;
    const char *id;
    const char *textKey; ///< one clause, to which `Derived::detail` is added
};

inline constexpr std::array<DerivationText, 20> derivationTexts = {{
    {Derivation::Fitted, "fitted", "ICONS_FITTED"},
    {Derivation::NotDrawn, "not-drawn", "ICONS_NOT_DRAWN"},
    {Derivation::IconFlattened, "icon-flattened", "ICONS_ICON_FLATTENED"},
    {Derivation::TintedFromIcon, "tinted-from-icon", "ICONS_TINTED_FROM_ICON"},
    {Derivation::TintedOnBlack, "tinted-on-black", "ICONS_TINTED_ON_BLACK"},
    {Derivation::DarkIsIcon, "dark-is-icon", "ICONS_DARK_IS_ICON"},
    {Derivation::DarkLeftOut, "dark-left-out", "ICONS_DARK_LEFT_OUT"},
    {Derivation::ForegroundFromIcon, "foreground-from-icon", "ICONS_FOREGROUND_FROM_ICON"},
    {Derivation::BackgroundFromBorder, "background-from-border", "ICONS_BACKGROUND_FROM_BORDER"},
    {Derivation::BackgroundWhite, "background-white", "ICONS_BACKGROUND_WHITE"},
    {Derivation::MonochromeFromIcon, "monochrome-from-icon", "ICONS_MONOCHROME_FROM_ICON"},
    {Derivation::MonochromeLeftOut, "monochrome-left-out", "ICONS_MONOCHROME_LEFT_OUT"},
    {Derivation::WebOnBackground, "web-on-background", "ICONS_WEB_ON_BACKGROUND"},
    {Derivation::BackLayerFlattened, "back-layer-flattened", "ICONS_BACK_LAYER_FLATTENED"},
    {Derivation::ShelfFromLayers, "shelf-from-layers", "ICONS_SHELF_FROM_LAYERS"},
    {Derivation::LayersFromIcon, "layers-from-icon", "ICONS_LAYERS_FROM_ICON"},
    {Derivation::ScalableLeftOut, "scalable-left-out", "ICONS_SCALABLE_LEFT_OUT"},
    {Derivation::OnlyIconSet, "only-icon-set", "ICONS_ONLY_ICON_SET"},
    {Derivation::BackgroundKept, "background-kept", "ICONS_BACKGROUND_KEPT"},
    {Derivation::SettingsNotRead, "settings-not-read", "ICONS_SETTINGS_NOT_READ"},
}};

/// A derivation that was used.
struct Derived
{
    Derivation derivation = Derivation::Fitted;
    QString detail; ///< its color, size or file; may be empty

    bool operator==(const Derived &) const = default;
};

} // namespace lumora
