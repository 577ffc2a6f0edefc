// SPDX-License-Identifier: MIT
#include "ZipArchive.h"

#include "foundation/Log.h"

#include <minizip/unzip.h>

namespace lumora
{

using namespace Qt::StringLiterals;

ZipArchive::~ZipArchive()
{
    CloseZipFile2();
}

bool ZipArchive::UnzipOpenFile(const QString &path)
{
    if (m_unzFile != nullptr)
        ::unzClose(m_unzFile);
    m_path = path;
    m_unzFile = ::unzOpen(path.toUtf8().constData());
    if (m_unzFile == nullptr)
        return false;
    unz_global_info info = {};
    if (::unzGetGlobalInfo(m_unzFile, &info) == UNZ_OK)
        logLine(u"%1 entries in the zip file"_s.arg(info.number_entry));
    m_entriesClaimed = info.number_entry;
    return true;
}

bool ZipArchive::UnzipOpenFile(const QString &path, const QString &password)
{
    m_password = password.toLatin1();
    return UnzipOpenFile(path);
}

bool ZipArchive::UnzipCloseFile()
{
    m_password.clear();
    if (m_unzFile == nullptr)
        return true;
    return ::unzClose(std::exchange(m_unzFile, nullptr)) == UNZ_OK;
}

void ZipArchive::OutputErrorMessage(const QString &message)
{
    if (m_delegate && m_delegate->respondsToSelector("ErrorMessage"_L1))
        m_delegate->ErrorMessage(message);
}

bool ZipArchive::OverWrite(const QString &path)
{
    if (m_delegate && m_delegate->respondsToSelector("OverWriteOperation"_L1))
        return m_delegate->OverWriteOperation(path);
    return true;
}

QDate ZipArchive::Date1980() const
{
    return QDate(1980, 1, 1);
}

} // namespace lumora
