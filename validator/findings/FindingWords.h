// SPDX-License-Identifier: MIT
#pragma once

#include "validator/review/PackageReview.h"

#include <QDateTime>
#include <QString>

namespace lumora
{

/// "3 errors, 2 warnings"; without findings, that there are none.
QString findingSumText(const QList<Finding> &findings);

/// "Error", "Warning", "Note".
QString severityText(Severity severity);

QString bundleKindText(BundleKind kind);

/// The name of one of `fileKinds()`.
QString fileKindText(const QString &kind);

/// "12.4 MB" in the user's format.
QString bytesText(quint64 bytes);

/// "expires in 41 days (31/12/2026)", or that it has expired.
QString expiryText(const QDateTime &expires, const QDateTime &now);

/// What was found and where, as one text that no hostile package makes endless.
QString evidenceText(const Evidence &evidence);

/// The findings as a person reads them in a mail.
QStringList findingTexts(const QList<Finding> &findings);

} // namespace lumora
