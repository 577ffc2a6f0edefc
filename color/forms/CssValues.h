// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <optional>
#include <vector>

namespace lumora
{

/// One value among a CSS function's arguments.
struct CssValue
{
    enum class Kind { Number, Percentage, Angle, None, Word };

    Kind kind = Kind::Number;
    double number = 0.0; ///< an angle in degrees; 0 for none
    QString word;        ///< of a word, in lower case
};

/// A call such as "rgb(51 102 153 / 50%)".
struct CssFunction
{
    QString name; ///< in lower case
    std::vector<CssValue> arguments;
    std::optional<CssValue> alpha;
    /// Whether commas separate the arguments, and so also the opacity.
    bool commas = false;
};

/// Reads a text that is one call. Either all arguments are separated by commas or none is.
std::optional<CssFunction> cssFunction(QStringView text);

} // namespace lumora
