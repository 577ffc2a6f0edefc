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

    /// The text inside the profile at the path, decoded as ASCII (a byte above 127 becomes U+FFFD). Empty when there is
    /// no profile or it is not a signed message (plain XML, PEM, damaged), as when a decoder fails. `std::nullopt` when
    /// there is no decoder.
    virtual std::optional<QString> readProvisioningFromPath(const QString &path) const = 0;
    /// The same for the profile at the path inside a package.
    virtual std::optional<QString> readProvisioning(const PackageSource &source, const QString &path) const = 0;
    /// True when it needs no other program, so that it also works in a locked process.
    virtual bool worksLockedIn() const = 0;
};

/// Reads the signed message with OpenSSL. Like the system's tool it does not check the signer: the text is shown and
/// searched, never trusted.
class CmsProfileDecoder final : public ProfileDecoder
{
public:
    std::optional<QString> readProvisioningFromPath(const QString &path) const override;
    std::optional<QString> readProvisioning(const PackageSource &source, const QString &path) const override;
    bool worksLockedIn() const override { return true; }
};

/// Asks the system's `security` tool.
class SecurityToolProfileDecoder final : public ProfileDecoder
{
public:
    explicit SecurityToolProfileDecoder(QString program) : m_program(std::move(program)) {}

    std::optional<QString> readProvisioningFromPath(const QString &path) const override;
    /// The tool reads files only, so a profile in an archive is never received.
    std::optional<QString> readProvisioning(const PackageSource &source, const QString &path) const override;
    bool worksLockedIn() const override { return false; }

    /// The profile's text: the whole output of the tool, once it has ended.
    static QString receivedProvProfileOutput(QProcess &tool);
    /// Logs the tool's unread output so far, to find out why a tool misbehaves. Not connected to anything.
    static void receivedTaskOutput(QProcess &tool);

private:
    QString m_program;
};

/// The decoder for this machine: the system's tool /usr/bin/security if it exists, else OpenSSL.
std::unique_ptr<ProfileDecoder> systemProfileDecoder();

/// The content of a CMS signed message in DER or BER (also with indefinite lengths); empty when the bytes are not one.
QByteArray signedMessageContent(const QByteArray &message);

/// The bytes as ASCII, each byte above 127 as U+FFFD.
QString asciiText(const QByteArray &bytes);

} // namespace lumora
