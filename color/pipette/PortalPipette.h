// SPDX-License-Identifier: MIT
#pragma once

#include "Pipette.h"

#include <QDBusConnection>
#include <QPointer>
#include <QVariantMap>
#include <QWidget>

class QDBusPendingCallWatcher;
class QDBusServiceWatcher;

namespace lumora
{

/// The pipette of the desktop portal: the request PickColor of org.freedesktop.portal.Screenshot, version 2 of that
/// interface or later (https://flatpak.github.io/xdg-desktop-portal/).
class PortalPipette final : public Pipette
{
    Q_OBJECT

public:
    explicit PortalPipette(QDBusConnection bus, QObject *parent = nullptr);

    /// First asks the bus for a portal, which starts one if possible. Does not block. Fails if the portal leaves the
    /// bus before the user has picked.
    void pick(QWidget *window) override;

signals:
    /// No portal on the bus can pick colors. Sent instead of one of the other signals.
    void unavailable();

private slots:
    /// The portal's answer: 0 with the color, 1 when the user canceled, anything else when it failed.
    void received(uint response, const QVariantMap &results);

private:
    void answered(QDBusPendingCallWatcher *call);
    void request();
    void requested(QDBusPendingCallWatcher *call);
    void listenTo(const QString &requestPath);
    void portalGone();

    QDBusConnection m_bus;
    QDBusServiceWatcher *m_watcher;
    QPointer<QWidget> m_window;
    QString m_requestPath;
    int m_requests = 0;
};

} // namespace lumora
