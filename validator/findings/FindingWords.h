// SPDX-License-Identifier: MIT
#pragma once

#include "validator/review/PackageReview.h"
#include "validator/rules/Wording.h"

#include <QDateTime>
#include <QString>

namespace lumora
{

QString bundleKindText(BundleKind kind);

/// "12.4 MB" in the user's format.
QString bytesText(quint64 bytes);

/// The day with its month in words and its whole year, since 3/2/27 is another day in each country.
QString dayText(QDate day);

/// "expires in 41 days (31 December 2026)", or that it has expired.
QString expiryText(const QDateTime &expires, const QDateTime &now);

/// What was found and where, as one text that no hostile package makes endless.
QString evidenceText(const Evidence &evidence);

/// The findings as a person reads them in a mail.
QStringList findingTexts(const QList<Finding> &findings);

} // namespace lumora
