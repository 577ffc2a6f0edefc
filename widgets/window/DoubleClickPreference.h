// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QDBusPendingCallWatcher;
class QDBusVariant;

namespace lumora
{

/// The user's choice of what a double-click on a title bar does.
class DoubleClickPreference
{
public:
    virtual ~DoubleClickPreference() = default;
    /// A double-click miniaturizes the window.
    virtual bool miniaturizesOnDoubleClick() const = 0;
    /// A double-click makes the window fill the screen, or restores its size. Any other choice does nothing here.
    virtual bool zoomsOnDoubleClick() const { return false; }
};

/// The desktop's own setting, read from the settings portal on the session bus and updated when it changes. Without a
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
