// SPDX-License-Identifier: MIT
#include "Complaint.h"

#include "CommandText.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct Wording
{
    FailureCode code;
    const char *word;
    const char *reason;
    const char *remedy;
};

constexpr Wording wordings[] = {
    {FailureCode::NotFound, "not-found", "CLI_NOT_FOUND", "CLI_NOT_FOUND_ADVICE"},
    {FailureCode::IsFolder, "is-folder", "CLI_IS_FOLDER", "CLI_IS_FOLDER_ADVICE"},
    {FailureCode::NotAFolder, "not-a-folder", "CLI_NOT_A_FOLDER", "CLI_NOT_A_FOLDER_ADVICE"},
    {FailureCode::NoPermission, "no-permission", "CLI_NO_PERMISSION", "CLI_NO_PERMISSION_ADVICE"},
    {FailureCode::NotAPicture, "not-a-picture", "CLI_NOT_A_PICTURE", "CLI_NOT_A_PICTURE_ADVICE"},
    {FailureCode::HighDynamicRange, "high-dynamic-range", "CLI_HIGH_DYNAMIC_RANGE", "CLI_HIGH_DYNAMIC_RANGE_ADVICE"},
    {FailureCode::WrongSize, "wrong-size", "CLI_WRONG_SIZE", "CLI_WRONG_SIZE_ADVICE"},
    {FailureCode::TooLarge, "too-large", "CLI_TOO_LARGE", "CLI_TOO_LARGE_ADVICE"},
    {FailureCode::CannotCreateFolder, "cannot-create-folder", "CLI_CANNOT_CREATE", "CLI_CANNOT_CREATE_ADVICE"},
    {FailureCode::CannotWrite, "cannot-write", "CLI_CANNOT_WRITE", "CLI_CANNOT_WRITE_ADVICE"},
    {FailureCode::NotAnArchive, "not-an-archive", "CLI_NOT_AN_ARCHIVE", "CLI_NOT_AN_ARCHIVE_ADVICE"},
    {FailureCode::MissingContent, "missing-content", "CLI_MISSING_CONTENT", "CLI_MISSING_CONTENT_ADVICE"},
    {FailureCode::NotReadable, "not-readable", "CLI_NOT_READABLE", "CLI_NOT_READABLE_ADVICE"},
    {FailureCode::InvalidValue, "invalid-value", "CLI_INVALID_VALUE", "CLI_INVALID_VALUE_ADVICE"},
    {FailureCode::NotMarked, "not-marked", "CLI_NOT_MARKED", "CLI_NOT_MARKED_ADVICE"},
    {FailureCode::WouldReplaceSource, "would-replace-source", "CLI_WOULD_REPLACE", "CLI_WOULD_REPLACE_ADVICE"},
    {FailureCode::Exists, "exists", "CLI_EXISTS", "CLI_EXISTS_ADVICE"},
    {FailureCode::NameTaken, "name-taken", "CLI_NAME_TAKEN", "CLI_NAME_TAKEN_ADVICE"},
    {FailureCode::HasTransparency, "has-transparency", "CLI_HAS_TRANSPARENCY", "CLI_HAS_TRANSPARENCY_ADVICE"},
    {FailureCode::NeedsLayers, "needs-layers", "CLI_NEEDS_LAYERS", "CLI_NEEDS_LAYERS_ADVICE"},
    {FailureCode::NotAProject, "not-a-project", "CLI_NOT_A_PROJECT", "CLI_NOT_A_PROJECT_ADVICE"},
    {FailureCode::AmbiguousProject, "ambiguous-project", "CLI_AMBIGUOUS_PROJECT", "CLI_AMBIGUOUS_PROJECT_ADVICE"},
    {FailureCode::LeadsOutside, "leads-outside", "CLI_LEADS_OUTSIDE", "CLI_LEADS_OUTSIDE_ADVICE"},
    {FailureCode::Stopped, "stopped", "CLI_STOPPED", "CLI_STOPPED_ADVICE"},
};

/// For a name with bytes of another encoding, which was searched for without them.
constexpr Wording notFoundUndecoded = {FailureCode::NotFound, "not-found", "CLI_NOT_FOUND_UNDECODED",
                                       "CLI_NOT_FOUND_UNDECODED_ADVICE"};

/// What helps in one case of a failure.
struct CaseAdvice
{
    const char *detail; ///< the key of the failure's detail
    const char *remedy;
};

constexpr CaseAdvice caseAdvice[] = {
    {"DETAIL_ICON_SETS", "CLI_CHOOSE_ICON_SET_ADVICE"},
    {"DETAIL_NO_ICON_SET", "CLI_CHOOSE_ICON_SET_ADVICE"},
    {"DETAIL_UNNAMED_ICON_SETS", "CLI_CHOOSE_ICON_SET_ADVICE"},
    {"DETAIL_NO_REGULAR_FILE", "CLI_NO_REGULAR_FILE_ADVICE"},
    {"DETAIL_MANIFEST_ICON", "CLI_MANIFEST_ICON_ADVICE"},
    {"DETAIL_FLAVOR_SETS", "CLI_CHOOSE_FLAVOR_ADVICE"},
    {"DETAIL_NO_FLAVOR", "CLI_NO_FLAVOR_ADVICE"},
    {"DETAIL_PROGRAM", "CLI_PROGRAM_ADVICE"},
    {"DETAIL_NO_TARGET", "CLI_NO_TARGET_ADVICE"},
};

const char *remedyOf(const Failure &failure, const Wording &wording)
{
    const auto *one = std::find_if(std::begin(caseAdvice), std::end(caseAdvice), [&failure](const CaseAdvice &known) {
        return failure.detail.key() == QLatin1StringView(known.detail);
    });
    return one == std::end(caseAdvice) ? wording.remedy : one->remedy;
}

const Wording &wordingOf(const Failure &failure)
{
    if (failure.code == FailureCode::NotFound && failure.subject.contains(QChar::ReplacementCharacter))
        return notFoundUndecoded;
    const auto *wording = std::find_if(std::begin(wordings), std::end(wordings),
                                       [&failure](const Wording &one) { return one.code == failure.code; });
    Q_ASSERT(wording != std::end(wordings));
    return *wording;
}

} // namespace

QString Complaint::line() const
{
    return (path.isEmpty() ? QString() : path + u": "_s) + message + (advice.isEmpty() ? QString() : u"; "_s + advice);
}

QJsonObject Complaint::json() const
{
    return {{u"code"_s, code},
            {u"path"_s, path.isEmpty() ? QJsonValue() : QJsonValue(path)},
            {u"message"_s, message},
            {u"advice"_s, advice}};
}

Complaint complaintOf(const Failure &failure)
{
    return complaintOf(failure, commandText(remedyOf(failure, wordingOf(failure))));
}

Complaint complaintOf(const Failure &failure, const QString &advice)
{
    const Wording &wording = wordingOf(failure);
    QString message = commandText(wording.reason);
    if (!failure.detail.isEmpty())
        message += u" ("_s + failure.detail.words() + u')';
    return {Complaint::Kind::Failure, QString::fromLatin1(wording.word), failure.subject, message, advice};
}

Complaint misuse(const char *code, const QString &message, const QString &advice)
{
    return {Complaint::Kind::Misuse, QString::fromLatin1(code), {}, message, advice};
}

} // namespace lumora
