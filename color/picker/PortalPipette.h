// SPDX-License-Identifier: MIT
#pragma once

#include "Pipette.h"

#include <QDBusConnection>
#include <QVariantMap>

class QDBusPendingCallWatcher;

namespace lumora
{

/// The pipette of the desktop portal: the request PickColor of org.freedesktop.portal.Screenshot, version 2 of that
/// interface or later (https://flatpak.github.io/xdg-desktop-portal/).
class PortalPipette final : public Pipette
{
    Q_OBJECT

public:
    explicit PortalPipette(QDBusConnection bus, QObject *parent = nullptr);

    /// Whether a portal on the bus can pick colours. Asks the bus, starting the portal where that is possible; waits
    /// half a second at most.
    bool isAvailable() const;
    void pick(QWidget *window) override;

private slots:
    /// The portal's answer: 0 with the colour, 1 when the user cancelled, anything else when it failed.
    void received(uint response, const QVariantMap &results);

private:
    void listenTo(const QString &requestPath);
    void requested(QDBusPendingCallWatcher *call);

    QDBusConnection m_bus;
    QString m_requestPath;
    int m_requests = 0;
};

} // namespace lumora
