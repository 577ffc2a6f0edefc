// SPDX-License-Identifier: MIT
#include "ReviewProcess.h"

#include "ReaderCall.h"
#include "ReviewAnswer.h"
#include "ReviewJson.h"

namespace lumora
{

std::variant<PackageReview, ReaderEnd> reviewInProcess(const ReaderOrder &order, const std::stop_token &stop,
                                                       const ReaderProgress &progress)
{
    std::optional<PackageReview> review;
    const auto take = [&review](const QString &word, const QByteArray &content) {
        if (word == reviewWord)
            review = reviewIn(content);
        return review ? ReaderStep::End : ReaderStep::Nonsense;
    };
    if (const auto end = readInProcess(order, reviewCall(order.package), stop, progress, take))
        return *end;
    return std::move(*review);
}

} // namespace lumora
