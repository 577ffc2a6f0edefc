// SPDX-License-Identifier: MIT
#pragma once

#include "FileKinds.h"
#include "validator/rules/Rule.h"

#include <QList>
#include <QString>

namespace lumora
{

/// What is named alike in both packages and differs. Empty where a package has none of it.
struct ChangedFact
{
    QString name;
    QString before;
    QString after;
};

struct KindTotals
{
    QString kind; ///< one of `fileKinds()`
    FileTotal before;
    FileTotal after;
};

struct GrownFile
{
    QString path; ///< from the app's folder; as in the package for what is beside it
    quint64 before = 0;
    quint64 after = 0;
};

/// How one package became another.
struct PackageDifference
{
    QList<ChangedFact> facts;
    QList<ChangedFact> entitlements;
    QList<ChangedFact> permissions; ///< the reasons that are given to people, by their keys
    QList<Finding> gained;
    QList<Finding> lost;
    KindTotals all;
    quint64 packedBefore = 0;
    quint64 packedAfter = 0;
    QList<KindTotals> kinds; ///< those that hold a file in either package
    QList<GrownFile> growth; ///< the largest first, ten at most
};

/// A package and what the rules find in it.
struct ComparedPackage
{
    PackageContents contents;
    QList<Finding> findings;
};

PackageDifference differenceBetween(const ComparedPackage &before, const ComparedPackage &after);

} // namespace lumora
