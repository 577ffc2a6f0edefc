// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <chrono>

namespace lumora
{

/// The request of a start of the program.
struct OpenRequest
{
    QString tool;       ///< the name of the tool to show; empty for none
    QStringList files;  ///< absolute paths
    bool today = false; ///< whether the tools show what has come since
};

/// The running program on the session bus, as org.freedesktop.Application describes it: there is one window per
/// session, and a second start of the program passes its request to it.
class BusApplication final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Start {
        First,     ///< this process is now the program
        Forwarded, ///< another process is, and it took the request
        Alone,     ///< there is no bus, or nothing there answered; no other start can find this process for now
    };

    explicit BusApplication(QObject *parent = nullptr);

    /// A program that does not answer within this time counts as hung.
    static constexpr std::chrono::milliseconds defaultPatience{5000};

    /// Becomes the program on the bus, or passes the request to the running one. If that does not answer, this process
    /// replaces it as soon as it has ended.
    Start start(const OpenRequest &request, std::chrono::milliseconds patience = defaultPatience);

    /// The action that shows the tools' sides of today; every other action is a tool's name.
    static constexpr QLatin1StringView todayAction{"today"};

    /// The bus object's path for an application id: the same with slashes.
    static QString objectPath(const QString &id);

public slots:
    // The bus calls these by their names.
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData);

signals:
    void activated();
    void filesOpened(const QStringList &files);
    void toolRequested(const QString &name);
    void todayRequested();
};

} // namespace lumora
