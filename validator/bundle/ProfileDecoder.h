// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

class QProcess;

namespace lumora
{

class PackageSource;

/// Decodes the signed provisioning profile of an app.
class ProfileDecoder
{
public:
    virtual ~ProfileDecoder() = default;

    /// The text inside the profile at the path, decoded as ASCII (a byte above 127 becomes U+FFFD). Empty when there
    /// is no profile or it is no signed message (plain XML, PEM, damaged): an empty text is what a decoder that fails
    /// leaves behind. Nothing when no decoder could be asked at all.
    virtual std::optional<QString> readProvisioningFromPath(const QString &path) const = 0;
    /// The same for the profile at the path in a package.
    virtual std::optional<QString> readProvisioning(const PackageSource &source, const QString &path) const = 0;
};

/// Reads the signed message with OpenSSL. Like the system's tool it does not ask who signed: the text is shown and
/// searched, never trusted.
class CmsProfileDecoder final : public ProfileDecoder
{
public:
    std::optional<QString> readProvisioningFromPath(const QString &path) const override;
    std::optional<QString> readProvisioning(const PackageSource &source, const QString &path) const override;
};

/// Asks the system's `security` tool.
class SecurityToolProfileDecoder final : public ProfileDecoder
{
public:
    explicit SecurityToolProfileDecoder(QString program) : m_program(std::move(program)) {}

    std::optional<QString> readProvisioningFromPath(const QString &path) const override;
    /// The tool reads files only: nothing is received for a profile that lies in an archive.
    std::optional<QString> readProvisioning(const PackageSource &source, const QString &path) const override;

    /// The profile's text out of the tool that was asked for it, once it has ended: all that it printed.
    static QString receivedProvProfileOutput(QProcess &tool);
    /// Logs what the tool has printed by now and was not read. For a look at a tool that misbehaves: nothing is
    /// connected to it.
    static void receivedTaskOutput(QProcess &tool);

private:
    QString m_program;
};

/// The one that suits this machine: the system's tool at /usr/bin/security where it exists, else OpenSSL.
std::unique_ptr<ProfileDecoder> systemProfileDecoder();

/// The content of a CMS signed message in DER or BER (indefinite lengths too); empty when the bytes are none.
QByteArray signedMessageContent(const QByteArray &message);

/// The bytes as ASCII, each byte above 127 as U+FFFD.
QString asciiText(const QByteArray &bytes);

} // namespace lumora
