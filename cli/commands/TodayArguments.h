// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "icons/today/Motifs.h"
#include "icons/today/SetPlans.h"
#include "icons/today/TodaySet.h"
#include "icons/today/TodaySources.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace lumora
{

class Declaration;

/// The arguments of `icons` for the sets of today: further sources, and how they are used.
struct TodayArguments
{
    QString dark;
    QString tinted;
    QString foreground;
    QString background; ///< a file or a color
    QString monochrome;
    QStringList layers; ///< from the back to the front
    QString flatten;
    QString name;
    QString iosForm;
    bool fit = false;
    bool macFullBleed = false;

    void declareOn(Declaration &declaration);
    /// The name of one of them that was given; empty where none was.
    QString firstGiven() const;

    SetOptions setOptions() const;
    MacForm macForm() const { return macFullBleed ? MacForm::FullBleed : MacForm::Body; }
    SourceFit sourceFit() const { return fit ? SourceFit::AnySquare : SourceFit::Exact; }
};

/// The sources, and what had to be said of them.
struct TodayInput
{
    TodaySources sources;
    QList<Derived> derived;
};

/// Reads every source that was named; `icon` is "-" for standard input. Fails with `InvalidValue` for a color that is
/// none.
Result<TodayInput> readTodayInput(const TodayArguments &arguments, const QString &icon);

/// The names on the command line of the sets, and of the common ones together.
QStringList todaySetNames();

/// The sets of these names; other names are passed over.
QList<TodaySet> todaySetsNamed(const QStringList &names);

} // namespace lumora
