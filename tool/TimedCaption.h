// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>

namespace lumora
{

/// The caption of a button that reports on the work it started: working, done, and after a while the caption at rest
/// again.
class TimedCaption final : public QObject
{
    Q_OBJECT

public:
    using SetCaption = std::function<void(const QString &caption)>;

    /// How long a report is shown.
    static constexpr std::chrono::milliseconds duration{2000};

    /// `setCaption` puts a text on the button; it is called at once with the caption at rest. The parent (the
    /// controller, or the button itself) must keep the button alive.
    TimedCaption(SetCaption setCaption, QString restCaption, QObject *parent);

    /// Shows the caption until another is shown; cancels a pending return to rest.
    void show(const QString &caption);
    /// Shows the caption and returns to rest 2.0 seconds after the last call.
    void showForAWhile(const QString &caption);

private:
    SetCaption m_setCaption;
    QString m_restCaption;
    QTimer m_timer{this};
};

} // namespace lumora
