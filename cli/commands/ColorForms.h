// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"

#include <QStringList>

namespace lumora
{

/// The request for a color in today's forms.
struct ColorFormsRequest
{
    QString text;
    QStringList forms; ///< names of `colorForms()`; empty for all of them
    /// Whether lines are in Display P3 if a form has that variant.
    bool displayP3 = false;
    QString contrast; ///< another color; empty for none
    /// False if only lines about the contrast are wanted.
    bool printsForms = true;
};

/// Prints the color in the forms, and its contrast with the other one. With --json the forms are in sRGB and, if they
/// have that variant, in Display P3.
ExitStatus printColorForms(Console &console, const ColorFormsRequest &request);

/// The names of all forms.
QStringList colorFormNames();

} // namespace lumora
