// SPDX-License-Identifier: MIT
#include "ZipArchiveDelegate.h"

namespace lumora
{

using namespace Qt::StringLiterals;

bool ZipArchiveDelegate::respondsToSelector(QLatin1StringView selector) const
{
    return selector == "ErrorMessage:"_L1 || selector == "OverWriteOperation:"_L1;
}

void ZipArchiveDelegate::ErrorMessage(const QString &) {}

bool ZipArchiveDelegate::OverWriteOperation(const QString &)
{
    return true;
}

} // namespace lumora
