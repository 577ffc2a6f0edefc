// SPDX-License-Identifier: MIT
#include "ZipArchive.h"
#include "ZipCipher.h"
#include "ZipDate.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <limits>

#include <minizip/zip.h>
#include <zlib.h>

namespace lumora
{

namespace
{

constexpr int deflateMethod = Z_DEFLATED;
constexpr int defaultLevel = Z_DEFAULT_COMPRESSION;
constexpr int windowBits = 15;
constexpr int memoryLevel = 8;
constexpr int defaultStrategy = 0;
constexpr uLong encryptedFlag = 1;

/// The record for a new entry: everything but the date (attributes, packed date) is zero.
zip_fileinfo entryRecord(const QDateTime &modified)
{
    const ZipDate date = entryDate(modified);
    zip_fileinfo record = {};
    record.tmz_date.tm_sec = static_cast<uInt>(date.second);
    record.tmz_date.tm_min = static_cast<uInt>(date.minute);
    record.tmz_date.tm_hour = static_cast<uInt>(date.hour);
    record.tmz_date.tm_mday = static_cast<uInt>(date.day);
    record.tmz_date.tm_mon = static_cast<uInt>(date.month);
    record.tmz_date.tm_year = static_cast<uInt>(date.year);
    return record;
}

/// The bytes as a raw deflate stream; empty when zlib refuses.
QByteArray deflated(const QByteArray &contents)
{
    z_stream stream = {};
    if (::deflateInit2(&stream, defaultLevel, deflateMethod, -windowBits, memoryLevel, defaultStrategy) != Z_OK)
        return {};
    const auto size = static_cast<uLong>(contents.size());
    QByteArray packed(static_cast<qsizetype>(::deflateBound(&stream, size)), Qt::Uninitialized);
    QByteArray input = contents; // zlib's interface asks for a pointer to non-constant bytes
    stream.next_in = reinterpret_cast<Bytef *>(input.data());
    stream.avail_in = static_cast<uInt>(size);
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    const int status = ::deflate(&stream, Z_FINISH);
    packed.truncate(static_cast<qsizetype>(stream.total_out));
    ::deflateEnd(&stream);
    return status == Z_STREAM_END ? packed : QByteArray();
}

/// The encryption header and the encrypted bytes after it.
QByteArray encrypted(const QByteArray &bytes, const QByteArray &password, uLong crc)
{
    QByteArray sealed(static_cast<qsizetype>(ZipCipher::headerSize), '\0');
    for (char &byte : sealed)
        byte = static_cast<char>(QRandomGenerator::system()->bounded(256));
    sealed.back() = static_cast<char>(crc >> 24);
    sealed += bytes;
    ZipCipher(password).encrypt(
        std::span(reinterpret_cast<unsigned char *>(sealed.data()), static_cast<std::size_t>(sealed.size())));
    return sealed;
}

} // namespace

bool ZipArchive::CreateZipFile2(const QString &path)
{
    if (m_zipFile != nullptr)
        ::zipClose(m_zipFile, nullptr);
    m_zipFile = ::zipOpen(path.toUtf8().constData(), APPEND_STATUS_CREATE);
    return m_zipFile != nullptr;
}

bool ZipArchive::CreateZipFile2(const QString &path, const QString &password)
{
    m_password = password.toLatin1();
    return CreateZipFile2(path);
}

bool ZipArchive::addFileToZip(const QString &path, const QString &newname)
{
    if (m_zipFile == nullptr)
        return false;
    const QDateTime modified = QFileInfo(path).lastModified();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > qint64{std::numeric_limits<unsigned>::max()})
        return false;
    const QByteArray contents = file.readAll();
    return m_password.isEmpty() ? addPlain(newname.toUtf8(), modified, contents)
                                : addEncrypted(newname.toUtf8(), modified, contents);
}

bool ZipArchive::addPlain(const QByteArray &name, const QDateTime &modified, const QByteArray &contents)
{
    const zip_fileinfo record = entryRecord(modified);
    if (::zipOpenNewFileInZip(m_zipFile, name.constData(), &record, nullptr, 0, nullptr, 0, nullptr, deflateMethod,
                              defaultLevel) != ZIP_OK)
        return false;
    return ::zipWriteInFileInZip(m_zipFile, contents.constData(), static_cast<unsigned>(contents.size())) == ZIP_OK &&
           ::zipCloseFileInZip(m_zipFile) == ZIP_OK;
}

/// The entry is deflated and encrypted here and passed on raw: the library's own encryption, used by its password
/// argument, makes entries that no program can read (see `ZipCipher`).
bool ZipArchive::addEncrypted(const QByteArray &name, const QDateTime &modified, const QByteArray &contents)
{
    const zip_fileinfo record = entryRecord(modified);
    const uLong crc = ::crc32(::crc32(0, nullptr, 0), reinterpret_cast<const Bytef *>(contents.constData()),
                              static_cast<uInt>(contents.size()));
    const QByteArray sealed = encrypted(deflated(contents), m_password, crc);
    constexpr int raw = 1;
    if (::zipOpenNewFileInZip4(m_zipFile, name.constData(), &record, nullptr, 0, nullptr, 0, nullptr, deflateMethod,
                               defaultLevel, raw, windowBits, memoryLevel, defaultStrategy, nullptr, crc, 0,
                               encryptedFlag) != ZIP_OK)
        return false;
    return ::zipWriteInFileInZip(m_zipFile, sealed.constData(), static_cast<unsigned>(sealed.size())) == ZIP_OK &&
           ::zipCloseFileInZipRaw(m_zipFile, static_cast<uLong>(contents.size()), crc) == ZIP_OK;
}

bool ZipArchive::CloseZipFile2()
{
    m_password.clear();
    if (m_zipFile == nullptr)
        return false;
    return ::zipClose(std::exchange(m_zipFile, nullptr), nullptr) == ZIP_OK;
}

} // namespace lumora
