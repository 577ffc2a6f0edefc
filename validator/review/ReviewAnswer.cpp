// SPDX-License-Identifier: MIT
#include "ReviewAnswer.h"

#include "ReaderPipe.h"
#include "ReviewJson.h"
#include "foundation/MemoryLimit.h"

namespace lumora
{

int answerReview(const QString &path, const RuleSettings &settings, int descriptor)
{
    becomeReader({{path}, {}, {}});
    ReaderPipe pipe(descriptor);
    const Result<PackageReview> review = withinMemory(
        path, [&] { return reviewPackage(path, settings, [&pipe](int perMille) { pipe.tellProgress(perMille); }); });
    if (!review)
        return pipe.sendFailure(review.failure().code) ? 0 : 1;
    return pipe.send(reviewWord, bytesOf(review.value())) ? 0 : 1;
}

} // namespace lumora
