// SPDX-License-Identifier: MIT
#pragma once

#include "ReaderProcess.h"
#include "validator/reports/FileKinds.h"
#include "validator/reports/HtmlReport.h"
#include "validator/rules/DeviceDemands.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QMap>

#include <functional>
#include <optional>

namespace lumora
{

/// A bundle as a review lists it.
struct ReviewedBundle
{
    QString path;
    BundleKind kind = BundleKind::App;
    QString identifier;
    QString version; ///< and the build in brackets, where both are there
    QString minimumSystem;
    bool isSigned = false;
};

/// A privacy manifest as a review lists it.
struct ReviewedManifest
{
    QString path;
    bool tracks = false;
    qsizetype trackingDomains = 0;
    qsizetype collectedDataTypes = 0;
    QMap<QString, QStringList> reasons; ///< by category
};

struct ReviewedKind
{
    QString kind; ///< one of `fileKinds()`
    FileTotal total;
};

/// What the readers and rules of today say of a package: all that a window shows and its saved reports hold.
struct PackageReview
{
    bool isOfOldTime = false; ///< the store's rules were not asked
    ShownPackage page;        ///< with every verdict
    QJsonObject json;         ///< all that `validate --json` says of it, but `ok` and `errors`
    QList<ReviewedBundle> bundles;
    QList<ReviewedManifest> manifests;
    QList<ReviewedKind> kinds; ///< those that the package holds, in the order of `fileKinds()`
    DeviceDemands demands;
    QByteArray largeIcon;       ///< a PNG of `largeIconSize`, empty when the package has none that can be read
    bool hasPackedIcon = false; ///< there is one in the catalog, compressed in a way that is not read

    /// What is broken, errors first, but what the ignored rules find.
    QList<Finding> findings(const QStringList &ignored = {}) const;
    /// The review as if these rules, by id, had not been asked.
    PackageReview without(const QStringList &ignored) const;
};

/// Reads the package in place and asks every rule. Fails where there is no app to judge.
Result<PackageReview> reviewPackage(const QString &path, const RuleSettings &settings,
                                    const ReaderProgress &progress = {});

} // namespace lumora
