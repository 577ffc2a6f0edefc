// SPDX-License-Identifier: MIT
// Any bytes as what the locked process that reads a package answers: as its stream of messages, and as each message.
#include "validator/bundle/MetadataChecks.h"
#include "validator/review/InspectionAnswer.h"
#include "validator/review/InspectionResults.h"
#include "validator/review/ReaderStream.h"
#include "validator/review/ReviewAnswer.h"
#include "validator/review/ReviewJson.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

using namespace lumora;

namespace
{

void hold(bool expected)
{
    if (!expected)
        std::abort();
}

/// What was read is written and read back without a change. The first writing leaves out what made no sense.
template <typename Value, typename Read> void keepsItsMeaning(const Value &value, Read read)
{
    const auto first = read(bytesOf(value));
    hold(first.has_value());
    const auto second = read(bytesOf(*first));
    hold(second.has_value() && bytesOf(*first) == bytesOf(*second));
}

bool takeReview(const QByteArray &bytes)
{
    const auto review = reviewIn(bytes);
    if (!review)
        return false;
    hold(std::all_of(review->page.judged.verdicts.cbegin(), review->page.judged.verdicts.cend(),
                     [](const RuleVerdict &verdict) { return verdict.rule != nullptr; }));
    const QList<Finding> findings = review->findings();
    hold(std::is_sorted(findings.cbegin(), findings.cend(), [](const Finding &one, const Finding &other) {
        return one.rule->severity > other.rule->severity;
    }));
    keepsItsMeaning(*review, &reviewIn);
    return true;
}

bool takeFacts(const QByteArray &bytes)
{
    const auto read = [](const QByteArray &each) { return gatheredFactsIn(each, QStringLiteral("package")); };
    const auto gathered = read(bytes);
    if (!gathered)
        return false;
    const PackageFacts &facts = gathered->facts;
    metadataVerdicts(facts);
    hold(facts.minimumOSNumber() >= 0);
    hold(!gathered->found ||
         (gathered->found->nameCount >= 0 && gathered->found->names.size() <= FoundContent::mostNames));
    keepsItsMeaning(*gathered, read);
    return true;
}

bool takeArtwork(const QByteArray &bytes)
{
    const auto artwork = artworkIn(bytes);
    if (!artwork)
        return false;
    hold(qint64{artwork->appIcon.width()} * artwork->appIcon.height() * 4 <= bytes.size());
    keepsItsMeaning(*artwork, &artworkIn);
    return true;
}

ReaderStep takeMessage(const QString &word, const QByteArray &content)
{
    if (word == gatheredWord)
        return takeFacts(content) ? ReaderStep::Continue : ReaderStep::Nonsense;
    const bool isWhole = (word == reviewWord && takeReview(content)) || (word == artworkWord && takeArtwork(content));
    return isWhole ? ReaderStep::End : ReaderStep::Nonsense;
}

/// How the stream ends, and its messages, when it comes in pieces of that many bytes.
struct Course
{
    ReaderStream::State state = ReaderStream::State::Incomplete;
    std::vector<std::pair<QString, QByteArray>> messages;

    bool operator==(const Course &) const = default;
};

Course courseOf(const QByteArray &bytes, qsizetype pieceSize)
{
    Course course;
    const ReaderProgress progress = [](int perMille) { hold(perMille >= 0 && perMille <= 1000); };
    const ReaderMessages messages = [&](const QString &word, const QByteArray &content) {
        course.messages.emplace_back(word, content);
        return takeMessage(word, content);
    };
    ReaderStream stream(progress, messages);
    for (qsizetype at = 0; at < bytes.size() && course.state == ReaderStream::State::Incomplete; at += pieceSize)
        course.state = stream.take(bytes.sliced(at, qMin(pieceSize, bytes.size() - at)));
    return course;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    takeReview(bytes);
    takeFacts(bytes);
    takeArtwork(bytes);
    const Course whole = courseOf(bytes, qMax<qsizetype>(bytes.size(), 1));
    // What follows the last message is only seen when it comes together with it.
    if (whole.state != ReaderStream::State::Nonsense)
        hold(courseOf(bytes, 100) == whole);
    return 0;
}
