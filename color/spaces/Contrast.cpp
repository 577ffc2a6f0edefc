// SPDX-License-Identifier: MIT
#include "Contrast.h"

#include "ColorModels.h"

#include <array>
#include <cmath>
#include <limits>

namespace lumora
{

namespace
{

/// The visible color of a translucent one on an opaque background.
WideColor over(const WideColor &color, const WideColor &opaque)
{
    const WideColor upper = clippedTo(color, RgbSpace::Srgb);
    const WideColor lower = clippedTo(opaque, RgbSpace::Srgb);
    const auto mixed = [&upper](double above, double below) { return above * upper.alpha + below * (1 - upper.alpha); };
    return {RgbSpace::Srgb, mixed(upper.red, lower.red), mixed(upper.green, lower.green), mixed(upper.blue, lower.blue),
            1.0};
}

// WCAG 2's weights of the linear components, and its constant for light that a screen reflects.
constexpr double redWeight = 0.2126;
constexpr double greenWeight = 0.7152;
constexpr double blueWeight = 0.0722;
constexpr double flare = 0.05;

double ratioOf(double one, double other)
{
    return (std::max(one, other) + flare) / (std::min(one, other) + flare);
}

using Bytes = std::array<int, 3>;

WideColor colorOf(const Bytes &bytes)
{
    return wideColorFromBytes(bytes[0], bytes[1], bytes[2]);
}

/// Searches the colors of whole bytes that reach a ratio on one side of a background.
class PassingColors
{
public:
    PassingColors(double background, double ratio, bool lighter)
        : m_background(background), m_ratio(ratio), m_lighter(lighter)
    {
    }

    /// The green closest to the threshold that reaches the ratio with this red and blue; empty if no green does. The
    /// given color fails, so the nearest passing color is at the threshold; green is chosen last because it has the
    /// largest weight in the luminance.
    std::optional<Bytes> onThreshold(int red, int blue) const
    {
        const double luminance =
            m_lighter ? (m_background + flare) * m_ratio - flare : (m_background + flare) / m_ratio - flare;
        const double rest = luminance - redWeight * linearOf(red) - blueWeight * linearOf(blue);
        const double green = encodedComponent(std::clamp(rest / greenWeight, 0.0, 1.0)) * 255.0;
        // Starts one step on the failing side, since rounding may have moved the result.
        const int step = m_lighter ? 1 : -1;
        const int begin = static_cast<int>(std::lround(green)) - step;
        for (int count = 0; count < 4; ++count) {
            const Bytes bytes{red, std::clamp(begin + count * step, 0, 255), blue};
            if (reaches(bytes))
                return bytes;
        }
        return std::nullopt;
    }

private:
    static double linearOf(int byte) { return linearComponent(byte / 255.0); }

    bool reaches(const Bytes &bytes) const
    {
        const double luminance = relativeLuminance(colorOf(bytes));
        return (luminance >= m_background) == m_lighter && ratioOf(luminance, m_background) >= m_ratio;
    }

    double m_background;
    double m_ratio;
    bool m_lighter;
};

/// The gray that is most similar to the wanted one. A tinted color may be slightly nearer, but does not replace a gray.
std::optional<WideColor> nearestGrayWithContrast(const WideColor &wanted, const WideColor &behind, double ratio)
{
    const OklabColor look = oklabOf(wanted);
    std::optional<WideColor> nearest;
    for (int level = 0; level < 256; ++level) {
        const WideColor gray = wideColorFromBytes(level, level, level);
        if (contrastOf(gray, behind).ratio >= ratio &&
            (!nearest || oklabDistance(oklabOf(gray), look) < oklabDistance(oklabOf(*nearest), look)))
            nearest = gray;
    }
    return nearest;
}

} // namespace

double relativeLuminance(const WideColor &color)
{
    const WideColor shown = clippedTo(color, RgbSpace::Srgb);
    return redWeight * linearComponent(shown.red) + greenWeight * linearComponent(shown.green) +
           blueWeight * linearComponent(shown.blue);
}

Contrast contrastOf(const WideColor &color, const WideColor &background)
{
    const WideColor behind = over(background, {RgbSpace::Srgb, 1.0, 1.0, 1.0, 1.0});
    return {ratioOf(relativeLuminance(over(color, behind)), relativeLuminance(behind))};
}

QString ratioText(double ratio)
{
    for (int decimals = 2; decimals < 6; ++decimals) {
        QString text = QString::number(ratio, 'f', decimals);
        const double rounded = text.toDouble();
        bool raised = false;
        for (const double threshold : {contrastForLargeText, contrastForText, enhancedContrastForText})
            raised = raised || (ratio < threshold && rounded >= threshold);
        if (!raised)
            return text;
    }
    return QString::number(ratio, 'g', 17);
}

std::optional<WideColor> nearestWithContrast(const WideColor &color, const WideColor &background, double ratio)
{
    const WideColor behind = over(background, {RgbSpace::Srgb, 1.0, 1.0, 1.0, 1.0});
    const WideColor wanted = over(color, behind);
    const auto [red, green, blue, alpha] = bytesOf(wanted);
    const WideColor whole = wideColorFromBytes(red, green, blue);
    if (contrastOf(whole, behind).ratio >= ratio)
        return whole;
    if (red == green && green == blue)
        return nearestGrayWithContrast(whole, behind, ratio);
    const OklabColor look = oklabOf(whole);
    std::optional<WideColor> nearest;
    double smallest = std::numeric_limits<double>::infinity();
    for (const bool lighter : {false, true}) {
        const PassingColors passing(relativeLuminance(behind), ratio, lighter);
        for (int pair = 0; pair < 256 * 256; ++pair) {
            const std::optional<Bytes> bytes = passing.onThreshold(pair / 256, pair % 256);
            const double distance = bytes ? oklabDistance(oklabOf(colorOf(*bytes)), look) : smallest;
            if (distance < smallest) {
                smallest = distance;
                nearest = colorOf(*bytes);
            }
        }
    }
    return nearest;
}

} // namespace lumora
