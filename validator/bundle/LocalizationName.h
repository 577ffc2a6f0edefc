// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// The English name of a localization folder without its ending: "French" for "fr", "Portuguese (Brazil)" for "pt-BR",
/// from the Unicode locale data. A name that does not begin with a language code of ISO 639 stays as it is: "Base" is
/// not a language, and old folders have English names ("German").
QString localizationName(const QString &identifier);

} // namespace lumora
