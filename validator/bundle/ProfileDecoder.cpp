// SPDX-License-Identifier: MIT
#include "ProfileDecoder.h"

#include "foundation/Log.h"
#include "foundation/WholeFile.h"
#include "validator/archive/PackageSource.h"
#include "validator/crypto/OpenSsl.h"

#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// Profiles with hundreds of devices stay below 200 KB.
constexpr qint64 largestProfile = 8 << 20;

struct FreeMessage
{
    void operator()(CMS_ContentInfo *message) const { openSsl().CMS_ContentInfo_free(message); }
};

} // namespace

QByteArray signedMessageContent(const QByteArray &message)
{
    if (message.size() > largestProfile)
        return {};
    const auto *bytes = reinterpret_cast<const unsigned char *>(message.constData());
    const std::unique_ptr<CMS_ContentInfo, FreeMessage> parsed(
        openSsl().d2i_CMS_ContentInfo(nullptr, &bytes, static_cast<long>(message.size())));
    openSsl().ERR_clear_error();
    if (!parsed || openSsl().OBJ_obj2nid(openSsl().CMS_get0_type(parsed.get())) != NID_pkcs7_signed)
        return {};
    ASN1_OCTET_STRING **content = openSsl().CMS_get0_content(parsed.get());
    openSsl().ERR_clear_error();
    if (content == nullptr || *content == nullptr)
        return {};
    return QByteArray(reinterpret_cast<const char *>(openSsl().ASN1_STRING_get0_data(*content)),
                      openSsl().ASN1_STRING_length(*content));
}

QString asciiText(const QByteArray &bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar &character : text) {
        if (character > QChar(0x7F))
            character = QChar(QChar::ReplacementCharacter);
    }
    return text;
}

std::optional<QString> CmsProfileDecoder::readProvisioningFromPath(const QString &path) const
{
    const auto message = readWholeFile(path, largestProfile);
    return message ? asciiText(signedMessageContent(message.value())) : u""_s;
}

std::optional<QString> CmsProfileDecoder::readProvisioning(const PackageSource &source, const QString &path) const
{
    const auto message = source.read(path, largestProfile);
    return message ? asciiText(signedMessageContent(message.value())) : u""_s;
}

std::optional<QString> SecurityToolProfileDecoder::readProvisioningFromPath(const QString &path) const
{
    QProcess tool;
    tool.setStandardErrorFile(QProcess::nullDevice());
    tool.start(m_program, {u"cms"_s, u"-D"_s, u"-i"_s, path}, QIODevice::ReadOnly);
    if (!tool.waitForStarted())
        return std::nullopt;
    tool.waitForFinished(-1);
    return receivedProvProfileOutput(tool);
}

std::optional<QString> SecurityToolProfileDecoder::readProvisioning(const PackageSource &source,
                                                                    const QString &path) const
{
    const PackageEntry *entry = source.find(path);
    // The tool itself reports a missing file.
    const QString onDisk = entry == nullptr ? path : source.pathOnDisk(*entry);
    return onDisk.isEmpty() ? std::nullopt : readProvisioningFromPath(onDisk);
}

QString SecurityToolProfileDecoder::receivedProvProfileOutput(QProcess &tool)
{
    const QString text = asciiText(tool.readAllStandardOutput());
    return text.isNull() ? u""_s : text;
}

void SecurityToolProfileDecoder::receivedTaskOutput(QProcess &tool)
{
    logLine(u"\n\nOutput:\n\n%1\n\n"_s.arg(asciiText(tool.readAllStandardOutput())));
}

std::unique_ptr<ProfileDecoder> systemProfileDecoder()
{
    const QString tool = u"/usr/bin/security"_s;
    if (QFileInfo(tool).isExecutable())
        return std::make_unique<SecurityToolProfileDecoder>(tool);
    return std::make_unique<CmsProfileDecoder>();
}

} // namespace lumora
