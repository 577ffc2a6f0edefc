// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"

#include <QStringList>

namespace lumora
{

/// What is asked of a color in today's forms.
struct ColorFormsRequest
{
    QString text;
    QStringList forms; ///< names of `colorForms()`; empty for all of them
    /// Whether lines are in Display P3 where a form has a variant of it.
    bool displayP3 = false;
    QString contrast; ///< another color; empty where none is asked for
    /// False where lines of the contrast alone are wanted.
    bool printsForms = true;
};

/// Prints the color in the forms, and its contrast with the other one. As JSON the forms are there in sRGB and, those
/// that have one, in Display P3.
ExitStatus printColorForms(Console &console, const ColorFormsRequest &request);

/// The names of all forms.
QStringList colorFormNames();

} // namespace lumora
