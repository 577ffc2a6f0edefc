// SPDX-License-Identifier: MIT
#include "ReaderCall.h"

#include "InspectionAnswer.h"
#include "ReviewAnswer.h"

#include <QDate>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString reviewArgument = u"--read-package"_s;
const QString inspectionArgument = u"--inspect-package"_s;
/// The most pixels a point of any screen.
constexpr int largestScale = 8;

} // namespace

QStringList reviewCall(const QString &package)
{
    return {reviewArgument, package};
}

QStringList inspectionCall(const QString &package, const QString &workFolder, int iconScale)
{
    return {inspectionArgument, package, workFolder, QString::number(iconScale)};
}

bool isReaderCall(const QStringList &arguments)
{
    const QString first = arguments.value(0);
    return (arguments.size() == 2 && first == reviewArgument) || (arguments.size() == 4 && first == inspectionArgument);
}

int answerReaderCall(const QStringList &arguments, int descriptor)
{
    if (arguments.value(0) == reviewArgument)
        return answerReview(arguments.value(1), RuleSettings{QDate::currentDate()}, descriptor);
    const int iconScale = std::clamp(arguments.value(3).toInt(), 1, largestScale);
    return answerInspection(arguments.value(1), arguments.value(2), iconScale, descriptor);
}

} // namespace lumora
