// SPDX-License-Identifier: MIT
#include "FailureText.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const char *reasonKey(FailureCode code)
{
    switch (code) {
    case FailureCode::NotFound:
        return "CLI_NOT_FOUND";
    case FailureCode::IsFolder:
        return "CLI_IS_FOLDER";
    case FailureCode::NotAFolder:
        return "CLI_NOT_A_FOLDER";
    case FailureCode::NoPermission:
        return "CLI_NO_PERMISSION";
    case FailureCode::NotAPicture:
        return "CLI_NOT_A_PICTURE";
    case FailureCode::HighDynamicRange:
        return "CLI_HIGH_DYNAMIC_RANGE";
    case FailureCode::WrongSize:
        return "CLI_WRONG_SIZE";
    case FailureCode::TooLarge:
        return "CLI_TOO_LARGE";
    case FailureCode::CannotCreateFolder:
        return "CLI_CANNOT_CREATE";
    case FailureCode::CannotWrite:
        return "CLI_CANNOT_WRITE";
    case FailureCode::NotMarked:
        return "CLI_NOT_MARKED";
    case FailureCode::WouldReplaceSource:
        return "CLI_WOULD_REPLACE";
    case FailureCode::Exists:
        return "CLI_EXISTS";
    case FailureCode::NameTaken:
        return "CLI_NAME_TAKEN";
    case FailureCode::MissingContent:
        return "CLI_MISSING_CONTENT";
    case FailureCode::HasTransparency:
        return "CLI_HAS_TRANSPARENCY";
    case FailureCode::NeedsLayers:
        return "CLI_NEEDS_LAYERS";
    case FailureCode::NotAProject:
        return "CLI_NOT_A_PROJECT";
    case FailureCode::AmbiguousProject:
        return "CLI_AMBIGUOUS_PROJECT";
    case FailureCode::Stopped:
        return "CLI_STOPPED";
    case FailureCode::LeadsOutside:
        return "CLI_LEADS_OUTSIDE";
    case FailureCode::NotAnArchive:
    case FailureCode::NotReadable:
    case FailureCode::InvalidValue:
        break;
    }
    return "CLI_NOT_READABLE";
}

QString seenFrom(const QString &folder, const QString &path)
{
    return !folder.isEmpty() && path.startsWith(folder + u'/') ? path.sliced(folder.size() + 1) : path;
}

struct Group
{
    QString reason;
    QString first;
    QSet<QString> subjects;
};

} // namespace

QString failureReason(const Failure &failure)
{
    const QString reason = qtTrId(reasonKey(failure.code));
    return failure.detail.isEmpty() ? reason : reason + u" ("_s + failure.detail.words() + u')';
}

QStringList failureLines(const std::vector<Failure> &failures, const QString &folder)
{
    std::vector<Group> groups;
    for (const Failure &failure : failures) {
        const QString reason = failureReason(failure);
        const auto known = std::find_if(groups.begin(), groups.end(),
                                        [&reason](const Group &group) { return group.reason == reason; });
        Group &group = known == groups.end() ? groups.emplace_back(Group{reason, failure.subject, {}}) : *known;
        group.subjects.insert(failure.subject);
    }
    QStringList lines;
    for (const Group &group : groups) {
        QString files = seenFrom(folder, group.first);
        if (group.subjects.size() > 1)
            files = qtTrId("RESULT_AND_MORE")
                        .replace(u"[COUNT]"_s, QString::number(group.subjects.size() - 1))
                        .replace(u"[FILE]"_s, files);
        lines << files + u": "_s + group.reason;
    }
    return lines;
}

} // namespace lumora
