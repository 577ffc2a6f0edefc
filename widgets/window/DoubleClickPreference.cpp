// SPDX-License-Identifier: MIT
#include "DoubleClickPreference.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsInterface = u"org.freedesktop.portal.Settings"_s;
const QString settingGroup = u"org.gnome.desktop.wm.preferences"_s;
const QString settingKey = u"action-double-click-titlebar"_s;
const QString miniaturizes = u"minimize"_s;
const QString zooms = u"toggle-maximize"_s;

/// The text in a variant, unwrapped as often as needed: the portal's Read returns a variant in a variant.
QString textIn(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toString();
}

} // namespace

DesktopDoubleClickPreference::DesktopDoubleClickPreference(QObject *parent) : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(portalService, portalPath, settingsInterface, u"SettingChanged"_s, this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read = QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, u"Read"_s);
    read << settingGroup << settingKey;
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &DesktopDoubleClickPreference::answered);
}

bool DesktopDoubleClickPreference::miniaturizesOnDoubleClick() const
{
    return m_action == miniaturizes;
}

bool DesktopDoubleClickPreference::zoomsOnDoubleClick() const
{
    return m_action == zooms;
}

void DesktopDoubleClickPreference::answered(QDBusPendingCallWatcher *watcher)
{
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    if (!reply.isError())
        m_action = textIn(reply.value().variant());
    watcher->deleteLater();
}

void DesktopDoubleClickPreference::settingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group == settingGroup && key == settingKey)
        m_action = textIn(value.variant());
}

} // namespace lumora
