// SPDX-License-Identifier: MIT
#include "JobResult.h"

#include "FailureText.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const char *summaryKey(const CountedThings &things, qsizetype written, qsizetype wanted)
{
    if (written == 0)
        return "RESULT_NOTHING";
    if (written < wanted)
        return things.partly;
    return written == 1 ? things.one : things.several;
}

} // namespace

QString shortFolder(const QString &folder)
{
    return folder.count(u'/') > 1 ? folder.section(u'/', -2) : folder;
}

JobResult jobResult(const CountedThings &things, qsizetype written, qsizetype wanted, const QString &folder,
                    const std::vector<Failure> &failures)
{
    // The folder comes last, because its name may contain "[COUNT]".
    const QString summary = qtTrId(summaryKey(things, written, wanted))
                                .replace(u"[DONE]"_s, QString::number(written))
                                .replace(u"[COUNT]"_s, QString::number(wanted))
                                .replace(u"[FOLDER]"_s, shortFolder(folder));
    return {summary, written == 0 ? QString() : folder, failureLines(failures, QFileInfo(folder).path()), {}};
}

} // namespace lumora
