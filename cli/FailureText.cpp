// SPDX-License-Identifier: MIT
#include "FailureText.h"

#include <algorithm>
#include <iterator>

namespace lumora
{

namespace
{

struct Wording
{
    FailureCode code;
    const char *reason;
    const char *remedy;
};

constexpr Wording wordings[] = {
    {FailureCode::NotFound, "does not exist", "check the path"},
    {FailureCode::IsFolder, "is a folder", "name a file"},
    {FailureCode::NotAFolder, "is not a folder", "name a folder that exists"},
    {FailureCode::NoPermission, "may not be opened", "change its permissions or choose another"},
    {FailureCode::NotAPicture, "is not a picture that can be read",
     "use an undamaged PNG, JPEG, TIFF, WebP, BMP or ICNS file"},
    {FailureCode::WrongSize, "has the wrong size", "use a picture of exactly 1024 x 1024 pixels"},
    {FailureCode::TooLarge, "is larger than what can be processed safely", "use a smaller file"},
    {FailureCode::CannotCreateFolder, "could not be created", "check the destination's permissions and free space"},
    {FailureCode::CannotWrite, "could not be written",
     "check the destination's permissions and free space, then run again"},
    {FailureCode::NotAnArchive, "is not a readable zip archive", "use an undamaged archive"},
    {FailureCode::MissingContent, "lacks what it has to contain", "check how it was made"},
    {FailureCode::NotReadable, "could not be read", "check that the file is undamaged"},
    {FailureCode::InvalidValue, "is not accepted", "see --help"},
    {FailureCode::TooSmall, "is too small to be halved", "use a picture of at least 2 x 2 pixels"},
    {FailureCode::NotMarked, "is not a .png file marked @2x or -hd", "rename it or leave it out"},
    {FailureCode::WouldReplaceSource, "is one of the pictures to be scaled down",
     "choose another folder, or allow it with --overwrite"},
};

/// For a name that held bytes of another encoding and was looked for without them.
constexpr Wording notFoundUndecoded = {FailureCode::NotFound, "does not exist under a name in UTF-8",
                                       "rename it if it is there, or check the path"};

const Wording *wordingOf(const Failure &failure)
{
    if (failure.code == FailureCode::NotFound && failure.subject.contains(QChar::ReplacementCharacter))
        return &notFoundUndecoded;
    const auto *wording = std::find_if(std::begin(wordings), std::end(wordings),
                                       [&failure](const Wording &one) { return one.code == failure.code; });
    return wording == std::end(wordings) ? nullptr : wording;
}

} // namespace

QString failureText(const Failure &failure)
{
    const Wording *wording = wordingOf(failure);
    return failureText(failure, QLatin1StringView(wording == nullptr ? "" : wording->remedy));
}

QString failureText(const Failure &failure, QLatin1StringView remedy)
{
    const Wording *wording = wordingOf(failure);
    if (wording == nullptr)
        return failure.subject;
    QString line = failure.subject + QStringLiteral(": ") + QLatin1StringView(wording->reason);
    if (!failure.detail.isEmpty())
        line += QStringLiteral(" (") + failure.detail + u')';
    return line + QStringLiteral("; ") + remedy;
}

} // namespace lumora
