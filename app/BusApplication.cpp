// SPDX-License-Identifier: MIT
#include "BusApplication.h"

#include "LocalFiles.h"
#include "foundation/Version.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QUrl>

namespace lumora
{

namespace
{

const QString interfaceName = QStringLiteral("org.freedesktop.Application");
/// A program that does not answer within this time is not there for the user either.
constexpr int answerWithinMilliseconds = 5000;

/// What lets the running program take the focus that this start was given.
QVariantMap platformData()
{
    QVariantMap data;
    const auto pass = [&data](const char *variable, const QString &key) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty())
            data.insert(key, value);
    };
    pass("XDG_ACTIVATION_TOKEN", QStringLiteral("activation-token"));
    pass("DESKTOP_STARTUP_ID", QStringLiteral("desktop-startup-id"));
    return data;
}

void takePlatformData(const QVariantMap &data)
{
    const QString token = data.value(QStringLiteral("activation-token")).toString();
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

bool forward(QDBusConnection &bus, const QString &member, const QVariantList &arguments)
{
    const QString id = QString::fromLatin1(applicationId);
    QDBusMessage call = QDBusMessage::createMethodCall(id, BusApplication::objectPath(id), interfaceName, member);
    call.setArguments(arguments);
    return bus.call(call, QDBus::Block, answerWithinMilliseconds).type() == QDBusMessage::ReplyMessage;
}

} // namespace

BusApplication::BusApplication(QObject *parent) : QObject(parent) {}

QString BusApplication::objectPath(const QString &id)
{
    QString path = u'/' + id;
    path.replace(u'.', u'/');
    // A bus path may not hold hyphens, which an id may.
    return path.replace(u'-', u'_');
}

BusApplication::Start BusApplication::start(const OpenRequest &request)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Start::Alone;
    const QString id = QString::fromLatin1(applicationId);
    // The object first: calls may come in as soon as the name is taken.
    bus.registerObject(objectPath(id), this, QDBusConnection::ExportAllSlots);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        bus.interface()->registerService(id, QDBusConnectionInterface::DontQueueService);
    if (reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered)
        return Start::First;

    bool answered = true;
    if (!request.tool.isEmpty())
        answered = forward(bus, QStringLiteral("ActivateAction"), {request.tool, QVariantList(), platformData()});
    if (answered && !request.files.isEmpty()) {
        QStringList uris;
        for (const QString &file : request.files)
            uris << QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
        answered = forward(bus, QStringLiteral("Open"), {uris, platformData()});
    } else if (answered && request.tool.isEmpty()) {
        answered = forward(bus, QStringLiteral("Activate"), {platformData()});
    }
    return answered ? Start::Forwarded : Start::Alone;
}

void BusApplication::Activate(const QVariantMap &platformData)
{
    takePlatformData(platformData);
    emit activated();
}

void BusApplication::Open(const QStringList &uris, const QVariantMap &platformData)
{
    takePlatformData(platformData);
    QList<QUrl> urls;
    for (const QString &uri : uris)
        urls << QUrl(uri);
    emit filesOpened(localFiles(urls));
}

void BusApplication::ActivateAction(const QString &name, const QVariantList &, const QVariantMap &platformData)
{
    takePlatformData(platformData);
    emit toolRequested(name);
}

} // namespace lumora
