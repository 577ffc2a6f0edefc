// SPDX-License-Identifier: MIT
#include "PackageComplaint.h"

#include "cli/console/CommandText.h"
#include "validator/archive/OpenPackage.h"

using namespace Qt::StringLiterals;

namespace lumora
{

Complaint packageComplaint(const QString &file, const Failure &failure)
{
    if (failure.code == FailureCode::NotAnArchive && !hasPackageName(file))
        return {Complaint::Kind::Failure, u"wrong-name"_s, file, commandText("CLI_NOT_NAMED_IPA"),
                commandText("CLI_NOT_NAMED_IPA_ADVICE")};
    return complaintOf(Failure{failure.code, file, failure.detail});
}

} // namespace lumora
