// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <chrono>

namespace lumora
{

/// What a start of the program asks for.
struct OpenRequest
{
    QString tool;      ///< the tool to show, by its name; empty for none in particular
    QStringList files; ///< absolute paths
};

/// The running program on the session bus, as org.freedesktop.Application describes it: there is one window a session,
/// and a second start of the program talks to it.
class BusApplication final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Start {
        First,     ///< this process is the program now
        Forwarded, ///< another one is, and it took the request
        Alone,     ///< there is no bus, or nobody there answered; for now nobody finds this process
    };

    explicit BusApplication(QObject *parent = nullptr);

    /// A program that does not answer within this time is not there for the user either.
    static constexpr std::chrono::milliseconds defaultPatience{5000};

    /// Becomes the program on the bus, or hands the request to the one that is. Where it does not answer, this
    /// one takes its place as soon as it is gone.
    Start start(const OpenRequest &request, std::chrono::milliseconds patience = defaultPatience);

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
};

} // namespace lumora
