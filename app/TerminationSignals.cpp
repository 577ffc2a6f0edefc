// SPDX-License-Identifier: MIT
#include "TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace lumora
{

namespace
{

constexpr std::array handledSignals = {SIGHUP, SIGINT, SIGTERM};

/// The read and write ends of a pipe: a signal handler may do nothing but write to it.
std::array<int, 2> wakeUpPipe = {-1, -1};

void handle(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(wakeUpPipe[1], &byte, 1);
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent)
{
    if (::pipe2(wakeUpPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = new QSocketNotifier(wakeUpPipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        emit terminated();
    });
    struct sigaction action = {};
    action.sa_handler = handle;
    // A second signal ends the program at once, in case it hangs.
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int signal : handledSignals)
        ::sigaction(signal, &action, nullptr);
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : handledSignals)
        std::signal(signal, SIG_DFL);
    for (int &end : wakeUpPipe) {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
}

} // namespace lumora
