// SPDX-License-Identifier: MIT
#pragma once

#include "validator/bundle/FoundContent.h"
#include "validator/bundle/PackageInspection.h"

#include <QByteArray>

#include <functional>
#include <optional>

namespace lumora
{

/// What is known of a package before its pictures are looked at.
struct GatheredFacts
{
    PackageFacts facts;
    Extraction extraction;
    std::optional<FoundContent> found; ///< of a file that holds no app
};

/// Receives what an inspection finds, in this order.
struct InspectionResults
{
    std::function<void(const GatheredFacts &gathered)> gathered;
    std::function<void(const ArtworkReport &artwork)> validated;
};

/// Unpacks and inspects the package on the calling thread.
void inspectHere(const QString &path, const InspectionSite &site, const InspectionResults &results);

/// The results on their way from one process to the other.
QByteArray bytesOf(const GatheredFacts &gathered);
QByteArray bytesOf(const ArtworkReport &artwork);

/// The results in the bytes, which may come from a process that a hostile package has taken over: nothing when they are
/// no such results, and a part that makes no sense is left out. The path is that of the package.
std::optional<GatheredFacts> gatheredFactsIn(const QByteArray &bytes, const QString &path);
/// The picture comes as pixels, so that nothing is decoded here.
std::optional<ArtworkReport> artworkIn(const QByteArray &bytes);

} // namespace lumora
