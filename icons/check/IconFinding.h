// SPDX-License-Identifier: MIT
#pragma once

#include "IconRules.h"
#include "foundation/FailureDetail.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <algorithm>

namespace lumora
{

/// A broken rule.
struct IconFinding
{
    IconRule rule = IconRule::ContentsUnreadable;
    QString path;           ///< of the file or folder concerned
    FailureDetail evidence; ///< what was found there

    bool operator==(const IconFinding &) const = default;
};

/// What a check has read and found.
struct IconCheck
{
    QStringList checked; ///< paths of the catalogues, resources, manifests and icon files that were judged
    QList<IconFinding> findings;

    void add(IconRule rule, const QString &path, const FailureDetail &evidence = {})
    {
        findings.append({rule, path, evidence});
    }
    /// Adds what another check has read and found; the worst findings come first.
    void append(const IconCheck &other)
    {
        checked += other.checked;
        findings += other.findings;
        sort();
    }
    void sort()
    {
        std::stable_sort(findings.begin(), findings.end(), [](const IconFinding &one, const IconFinding &other) {
            return infoOf(one.rule).severity < infoOf(other.rule).severity;
        });
    }
    bool has(FindingSeverity severity) const
    {
        for (const IconFinding &finding : findings) {
            if (infoOf(finding.rule).severity == severity)
                return true;
        }
        return false;
    }
};

} // namespace lumora
