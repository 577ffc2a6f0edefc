// SPDX-License-Identifier: MIT
#include "FileReader.h"

#include "foundation/WholeFile.h"

namespace lumora
{

Result<QByteArray> DiskReader::read(const QString &path, qint64 limit) const
{
    return readWholeFile(path, limit);
}

} // namespace lumora
