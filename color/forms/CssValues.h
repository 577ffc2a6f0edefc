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
    /// Whether commas stand between the arguments, and so before the opacity.
    bool commas = false;
};

/// The call that the text is as a whole. Arguments all stand after commas or none does.
std::optional<CssFunction> cssFunction(QStringView text);

} // namespace lumora
