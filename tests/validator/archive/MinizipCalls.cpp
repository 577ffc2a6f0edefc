// SPDX-License-Identifier: MIT
// Intercepts the calls into minizip: the linker finds these functions before the library's.
#include "MinizipCalls.h"

#include <QStringList>

#include <dlfcn.h>

#include <minizip/unzip.h>
#include <minizip/zip.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

MinizipCalls *recorder = nullptr;
/// The depth of nested calls, since the library's own calls also pass through here.
int depth = 0;

QString text(const char *string)
{
    return string == nullptr ? u"null"_s : QString::fromUtf8(string);
}

QString pointer(const void *place)
{
    return place == nullptr ? u"null"_s : u"set"_s;
}

template <typename Number> QString number(Number value)
{
    return QString::number(value);
}

QString date(const zip_fileinfo *info)
{
    const tm_zip &when = info->tmz_date;
    return u"%1-%2-%3 %4:%5:%6 and %7 %8 %9"_s.arg(when.tm_year)
        .arg(when.tm_mon)
        .arg(when.tm_mday)
        .arg(when.tm_hour)
        .arg(when.tm_min)
        .arg(when.tm_sec)
        .arg(info->dosDate)
        .arg(info->internal_fa)
        .arg(info->external_fa);
}

/// One call, from its record to its return.
class Call
{
public:
    Call(const char *function, const QStringList &arguments)
    {
        if (depth++ == 0 && recorder != nullptr)
            m_fails = recorder->note(QString::fromLatin1(function), arguments);
    }
    ~Call() { --depth; }
    Q_DISABLE_COPY_MOVE(Call)

    bool fails() const { return m_fails; }

private:
    bool m_fails = false;
};

/// The library's own function of the name.
template <typename Function> Function *library(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

} // namespace

MinizipCalls::MinizipCalls()
{
    recorder = this;
}

MinizipCalls::~MinizipCalls()
{
    recorder = nullptr;
}

void MinizipCalls::letFail(const QString &function, int number)
{
    m_failing = function;
    m_failsIn = number;
}

QStringList MinizipCalls::names() const
{
    QStringList names;
    for (const QString &call : m_calls)
        names += call.section(u'(', 0, 0);
    return names;
}

bool MinizipCalls::note(const QString &function, const QStringList &arguments)
{
    m_calls += function + u'(' + arguments.join(u", "_s) + u')';
    return function == m_failing && --m_failsIn == 0;
}

} // namespace lumora

using namespace lumora;

// The library's function of the same name, called with its replacement's arguments.
#define LIBRARY(name) library<decltype(name)>(#name)

extern "C" {
unzFile unzOpen(const char *path)
{
    const Call call("unzOpen", {text(path)});
    return call.fails() ? nullptr : LIBRARY(unzOpen)(path);
}

int unzGetGlobalInfo(unzFile file, unz_global_info *info)
{
    const Call call("unzGetGlobalInfo", {});
    return call.fails() ? UNZ_ERRNO : LIBRARY(unzGetGlobalInfo)(file, info);
}

int unzGoToFirstFile(unzFile file)
{
    const Call call("unzGoToFirstFile", {});
    return call.fails() ? UNZ_ERRNO : LIBRARY(unzGoToFirstFile)(file);
}

int unzGoToNextFile(unzFile file)
{
    const Call call("unzGoToNextFile", {});
    return call.fails() ? UNZ_ERRNO : LIBRARY(unzGoToNextFile)(file);
}

int unzOpenCurrentFile(unzFile file)
{
    const Call call("unzOpenCurrentFile", {});
    return call.fails() ? UNZ_ERRNO : LIBRARY(unzOpenCurrentFile)(file);
}

int unzOpenCurrentFilePassword(unzFile file, const char *password)
{
    const Call call("unzOpenCurrentFilePassword", {text(password)});
    return call.fails() ? UNZ_ERRNO : LIBRARY(unzOpenCurrentFilePassword)(file, password);
}

int unzGetCurrentFileInfo(unzFile file, unz_file_info *info, char *name, uLong nameSize, void *extra, uLong extraSize,
                          char *comment, uLong commentSize)
{
    const Call call("unzGetCurrentFileInfo", {pointer(name), number(nameSize), pointer(extra), number(extraSize),
                                              pointer(comment), number(commentSize)});
    return call.fails()
               ? UNZ_ERRNO
               : LIBRARY(unzGetCurrentFileInfo)(file, info, name, nameSize, extra, extraSize, comment, commentSize);
}

int unzReadCurrentFile(unzFile file, void *buffer, unsigned size)
{
    const Call call("unzReadCurrentFile", {number(size)});
    return call.fails() ? UNZ_ERRNO : LIBRARY(unzReadCurrentFile)(file, buffer, size);
}

int unzCloseCurrentFile(unzFile file)
{
    const Call call("unzCloseCurrentFile", {});
    const int status = LIBRARY(unzCloseCurrentFile)(file);
    return call.fails() ? UNZ_ERRNO : status;
}

int unzClose(unzFile file)
{
    const Call call("unzClose", {});
    const int status = LIBRARY(unzClose)(file);
    return call.fails() ? UNZ_ERRNO : status;
}

zipFile zipOpen(const char *path, int append)
{
    const Call call("zipOpen", {text(path), number(append)});
    return call.fails() ? nullptr : LIBRARY(zipOpen)(path, append);
}

int zipOpenNewFileInZip(zipFile file, const char *name, const zip_fileinfo *info, const void *localExtra,
                        uInt localSize, const void *globalExtra, uInt globalSize, const char *comment, int method,
                        int level)
{
    const Call call("zipOpenNewFileInZip",
                    {text(name), date(info), pointer(localExtra), number(localSize), pointer(globalExtra),
                     number(globalSize), text(comment), number(method), number(level)});
    return call.fails() ? ZIP_ERRNO
                        : LIBRARY(zipOpenNewFileInZip)(file, name, info, localExtra, localSize, globalExtra, globalSize,
                                                       comment, method, level);
}

int zipOpenNewFileInZip4(zipFile file, const char *name, const zip_fileinfo *info, const void *localExtra,
                         uInt localSize, const void *globalExtra, uInt globalSize, const char *comment, int method,
                         int level, int raw, int windowBits, int memLevel, int strategy, const char *password,
                         uLong crc, uLong madeBy, uLong flags)
{
    const Call call("zipOpenNewFileInZip4",
                    {text(name), date(info), pointer(localExtra), number(localSize), pointer(globalExtra),
                     number(globalSize), text(comment), number(method), number(level), number(raw), number(windowBits),
                     number(memLevel), number(strategy), text(password), number(crc), number(madeBy), number(flags)});
    return call.fails() ? ZIP_ERRNO
                        : LIBRARY(zipOpenNewFileInZip4)(file, name, info, localExtra, localSize, globalExtra,
                                                        globalSize, comment, method, level, raw, windowBits, memLevel,
                                                        strategy, password, crc, madeBy, flags);
}

int zipWriteInFileInZip(zipFile file, const void *bytes, unsigned size)
{
    const Call call("zipWriteInFileInZip", {number(size)});
    return call.fails() ? ZIP_ERRNO : LIBRARY(zipWriteInFileInZip)(file, bytes, size);
}

int zipCloseFileInZip(zipFile file)
{
    const Call call("zipCloseFileInZip", {});
    const int status = LIBRARY(zipCloseFileInZip)(file);
    return call.fails() ? ZIP_ERRNO : status;
}

int zipCloseFileInZipRaw(zipFile file, uLong size, uLong crc)
{
    const Call call("zipCloseFileInZipRaw", {number(size), number(crc)});
    const int status = LIBRARY(zipCloseFileInZipRaw)(file, size, crc);
    return call.fails() ? ZIP_ERRNO : status;
}

int zipClose(zipFile file, const char *comment)
{
    const Call call("zipClose", {text(comment)});
    const int status = LIBRARY(zipClose)(file, comment);
    return call.fails() ? ZIP_ERRNO : status;
}
}
