// SPDX-License-Identifier: MIT
#include "BusApplication.h"

#include "SilentBus.h"
#include "foundation/Version.h"
#include "tool/services/LocalFiles.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr char addressVariable[] = "DBUS_SESSION_BUS_ADDRESS";
const QString interfaceName = u"org.freedesktop.Application"_s;

/// The end of the caller's wait, in milliseconds of the clock that all processes of the machine share.
const QString answerUntilKey = u"lumora-answer-until"_s;

qint64 sharedClock()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

/// Whether the caller has stopped waiting and now does the work itself.
bool comesTooLate(const QVariantMap &platformData)
{
    const QVariant until = platformData.value(answerUntilKey);
    return until.isValid() && sharedClock() >= until.toLongLong();
}

/// The data that let the running program take the focus of this start, and the end of this start's wait.
QVariantMap platformData(std::chrono::milliseconds patience)
{
    QVariantMap data{{answerUntilKey, sharedClock() + patience.count()}};
    const auto pass = [&data](const char *variable, const QString &key) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty())
            data.insert(key, value);
    };
    pass("XDG_ACTIVATION_TOKEN", u"activation-token"_s);
    pass("DESKTOP_STARTUP_ID", u"desktop-startup-id"_s);
    return data;
}

void takePlatformData(const QVariantMap &data)
{
    const QString token = data.value(u"activation-token"_s).toString();
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

bool takeName(const QDBusConnection &bus, QDBusConnectionInterface::ServiceQueueOptions queueing)
{
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        bus.interface()->registerService(QString::fromLatin1(applicationId), queueing);
    return reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

/// Calls the program that has the name.
class Forwarding
{
public:
    Forwarding(const QDBusConnection &bus, std::chrono::milliseconds patience) : m_bus(bus), m_patience(patience) {}

    bool forward(const OpenRequest &request) const
    {
        if (request.today && !callAction(BusApplication::todayAction))
            return false;
        if (!request.tool.isEmpty() && !callAction(request.tool))
            return false;
        if (!request.files.isEmpty()) {
            QStringList uris;
            for (const QString &file : request.files)
                uris << QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
            return call(u"Open"_s, {uris, platformData(m_patience)});
        }
        return request.today || !request.tool.isEmpty() || call(u"Activate"_s, {platformData(m_patience)});
    }

private:
    bool callAction(const QString &name) const
    {
        return call(u"ActivateAction"_s, {name, QVariantList(), platformData(m_patience)});
    }

    bool call(const QString &member, const QVariantList &arguments) const
    {
        const QString id = QString::fromLatin1(applicationId);
        QDBusMessage call = QDBusMessage::createMethodCall(id, BusApplication::objectPath(id), interfaceName, member);
        call.setArguments(arguments);
        // Otherwise the bus would start a new instance if the running one has just exited; this process is already
        // there.
        call.setAutoStartService(false);
        return m_bus.call(call, QDBus::Block, static_cast<int>(m_patience.count())).type() ==
               QDBusMessage::ReplyMessage;
    }

    QDBusConnection m_bus;
    std::chrono::milliseconds m_patience;
};

} // namespace

BusApplication::BusApplication(QObject *parent) : QObject(parent) {}

QString BusApplication::objectPath(const QString &id)
{
    QString path = u'/' + id;
    path.replace(u'.', u'/');
    // An id may contain hyphens, but a bus path may not.
    return path.replace(u'-', u'_');
}

BusApplication::Start BusApplication::start(const OpenRequest &request, std::chrono::milliseconds patience)
{
    if (isSilentBus(qgetenv(addressVariable), patience)) {
        // The toolkit would also connect to it, and hang.
        qputenv(addressVariable, "disabled:");
        return Start::Alone;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Start::Alone;
    // The object first: calls may arrive as soon as the name is taken.
    bus.registerObject(objectPath(QString::fromLatin1(applicationId)), this, QDBusConnection::ExportAllSlots);
    if (takeName(bus, QDBusConnectionInterface::DontQueueService))
        return Start::First;
    if (Forwarding(bus, patience).forward(request))
        return Start::Forwarded;
    return takeName(bus, QDBusConnectionInterface::QueueService) ? Start::First : Start::Alone;
}

void BusApplication::Activate(const QVariantMap &platformData)
{
    if (comesTooLate(platformData))
        return;
    takePlatformData(platformData);
    emit activated();
}

void BusApplication::Open(const QStringList &uris, const QVariantMap &platformData)
{
    if (comesTooLate(platformData))
        return;
    takePlatformData(platformData);
    QList<QUrl> urls;
    for (const QString &uri : uris)
        urls << QUrl(uri);
    emit filesOpened(localFiles(urls));
}

void BusApplication::ActivateAction(const QString &name, const QVariantList &, const QVariantMap &platformData)
{
    if (comesTooLate(platformData))
        return;
    takePlatformData(platformData);
    if (name == todayAction)
        emit todayRequested();
    else
        emit toolRequested(name);
}

} // namespace lumora
