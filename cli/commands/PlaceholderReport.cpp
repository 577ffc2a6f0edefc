// SPDX-License-Identifier: MIT
#include "PlaceholderReport.h"

#include "cli/console/Interruption.h"
#include "placeholders/PlaceholderExport.h"

#include <QJsonArray>
#include <QJsonObject>

#include <iterator>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QJsonObject fileJson(const PlaceholderFile &file)
{
    return {{u"path"_s, file.path},
            {u"width"_s, file.size.width()},
            {u"height"_s, file.size.height()},
            {u"bytes"_s, file.bytes}};
}

} // namespace

ExitStatus reportPlaceholders(Console &console, const PlaceholderRun &run, qsizetype expected)
{
    ExitStatus status = ExitStatus::Done;
    QJsonArray files;
    for (const PlaceholderFile &file : run.files) {
        if (file.outcome) {
            files.append(fileJson(file));
            console.note(file.path);
        } else {
            console.complain(file.outcome.failure());
            status = ExitStatus::Refused;
        }
    }
    if (Interruption::isRequested() && std::ssize(run.files) < expected) {
        console.complain(Interruption::complaint(files.size(), expected));
        status = Interruption::status();
    }
    console.print(run.folder.path);
    return console.finish(status, {{u"folder"_s, run.folder.path}, {u"files"_s, files}});
}

} // namespace lumora
