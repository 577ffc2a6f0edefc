// SPDX-License-Identifier: MIT
#include "DoubleClickPreference.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace lumora
{

namespace
{

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString settingGroup = QStringLiteral("org.gnome.desktop.wm.preferences");
const QString settingKey = QStringLiteral("action-double-click-titlebar");
const QString miniaturizes = QStringLiteral("minimize");

/// The text in a variant, however often the portal has wrapped it: its Read answers a variant in a variant.
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
    bus.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    read << settingGroup << settingKey;
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &DesktopDoubleClickPreference::answered);
}

bool DesktopDoubleClickPreference::miniaturizesOnDoubleClick() const
{
    return m_action == miniaturizes;
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
