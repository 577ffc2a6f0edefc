// SPDX-License-Identifier: MIT
#include "PortalPipette.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr auto service = "org.freedesktop.portal.Desktop"_L1;
constexpr auto path = "/org/freedesktop/portal/desktop"_L1;
constexpr auto screenshot = "org.freedesktop.portal.Screenshot"_L1;
constexpr auto requestInterface = "org.freedesktop.portal.Request"_L1;
constexpr auto properties = "org.freedesktop.DBus.Properties"_L1;
constexpr uint firstVersionWithPickColor = 2;
/// Starting a portal takes a moment; the limit is for a portal that hangs.
constexpr int patienceMilliseconds = 5000;

/// Reads a structure of three numbers from 0 to 1; empty if the portal answered something else.
bool readColor(const QVariant &value, RgbaColor &color)
{
    if (!value.canConvert<QDBusArgument>())
        return false;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != "(ddd)"_L1)
        return false;
    double red = 0;
    double green = 0;
    double blue = 0;
    argument.beginStructure();
    argument >> red >> green >> blue;
    argument.endStructure();
    color = {static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue), 1.0F};
    return true;
}

/// The portal's name for the calling window; known for X11 only.
QString parentName(const QWidget *window)
{
    if (window == nullptr || qEnvironmentVariable("XDG_SESSION_TYPE") == u"wayland")
        return {};
    return u"x11:"_s + QString::number(window->window()->winId(), 16);
}

} // namespace

PortalPipette::PortalPipette(QDBusConnection bus, QObject *parent)
    : Pipette(parent), m_bus(std::move(bus)),
      m_watcher(new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForUnregistration, this))
{
    connect(m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, &PortalPipette::portalGone);
}

void PortalPipette::pick(QWidget *window)
{
    m_window = window;
    if (!m_bus.isConnected()) {
        emit unavailable();
        return;
    }
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, properties, u"Get"_s);
    question << QString(screenshot) << u"version"_s;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(question, patienceMilliseconds), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &PortalPipette::answered);
}

void PortalPipette::answered(QDBusPendingCallWatcher *call)
{
    call->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *call;
    if (!reply.isError() && reply.value().variant().toUInt() >= firstVersionWithPickColor)
        request();
    else
        emit unavailable();
}

void PortalPipette::request()
{
    // The answer is a signal of an object whose path follows from the caller's name and the token. The connection must
    // be made before the call, or the signal may be missed.
    const QString token = u"lumora"_s + QString::number(++m_requests);
    QString sender = m_bus.baseService().mid(1);
    listenTo(u"/org/freedesktop/portal/desktop/request/"_s + sender.replace(u'.', u'_') + u'/' + token);

    QDBusMessage call = QDBusMessage::createMethodCall(service, path, screenshot, u"PickColor"_s);
    call << parentName(m_window) << QVariantMap{{u"handle_token"_s, token}};
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &PortalPipette::requested);
}

void PortalPipette::received(uint response, const QVariantMap &results)
{
    listenTo({});
    RgbaColor color;
    if (response == 0 && readColor(results.value(u"color"_s), color))
        emit picked(color);
    else if (response == 1)
        emit canceled();
    else
        emit failed();
}

void PortalPipette::listenTo(const QString &requestPath)
{
    if (!m_requestPath.isEmpty())
        m_bus.disconnect(service, m_requestPath, requestInterface, u"Response"_s, this,
                         SLOT(received(uint, QVariantMap)));
    m_requestPath = requestPath;
    if (!m_requestPath.isEmpty())
        m_bus.connect(service, m_requestPath, requestInterface, u"Response"_s, this, SLOT(received(uint, QVariantMap)));
}

void PortalPipette::requested(QDBusPendingCallWatcher *call)
{
    call->deleteLater();
    // The portal has answered, or has left the bus, before the call returned.
    if (m_requestPath.isEmpty())
        return;
    const QDBusPendingReply<QDBusObjectPath> reply = *call;
    if (reply.isError()) {
        listenTo({});
        emit failed();
    } else if (reply.value().path() != m_requestPath) {
        // Portals before version 0.9 choose the path themselves.
        listenTo(reply.value().path());
    }
}

void PortalPipette::portalGone()
{
    if (m_requestPath.isEmpty())
        return;
    listenTo({});
    emit failed();
}

} // namespace lumora
