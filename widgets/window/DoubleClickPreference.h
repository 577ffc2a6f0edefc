// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QDBusPendingCallWatcher;
class QDBusVariant;

namespace lumora
{

/// What the user wants a double-click on a title bar to do.
class DoubleClickPreference
{
public:
    virtual ~DoubleClickPreference() = default;
    /// It is to miniaturize the window.
    virtual bool miniaturizesOnDoubleClick() const = 0;
    /// It is to make the window fill the screen, or give it back its size. Anything else that the user may want does
    /// nothing here.
    virtual bool zoomsOnDoubleClick() const { return false; }
};

/// The desktop's own setting, asked of the settings portal on the session bus and followed while it changes. Without a
/// portal, and until it has answered, a double-click does nothing.
class DesktopDoubleClickPreference : public QObject, public DoubleClickPreference
{
    Q_OBJECT

public:
    explicit DesktopDoubleClickPreference(QObject *parent = nullptr);

    bool miniaturizesOnDoubleClick() const override;
    bool zoomsOnDoubleClick() const override;

private slots:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void answered(QDBusPendingCallWatcher *watcher);

    QString m_action;
};

} // namespace lumora
