// SPDX-License-Identifier: MIT
#include "Interruption.h"

#include "CommandText.h"

#include <atomic>
#include <csignal>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int handledSignals[] = {SIGHUP, SIGINT, SIGTERM};

/// The received signal, 0 for none.
std::atomic<int> received = 0;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler may not wait for a lock");

void handle(int signal)
{
    received = signal;
}

} // namespace

Interruption::Interruption()
{
    struct sigaction action = {};
    action.sa_handler = handle;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int signal : handledSignals) {
        struct sigaction before = {};
        // Signals that the caller made the program ignore (`nohup`) stay ignored.
        if (::sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            ::sigaction(signal, &action, nullptr);
    }
}

Interruption::~Interruption()
{
    for (const int signal : handledSignals) {
        struct sigaction before = {};
        if (::sigaction(signal, nullptr, &before) == 0 && before.sa_handler == handle)
            std::signal(signal, SIG_DFL);
    }
}

bool Interruption::isRequested()
{
    return received != 0;
}

ExitStatus Interruption::status()
{
    return static_cast<ExitStatus>(128 + received);
}

Complaint Interruption::complaint(qsizetype done, qsizetype total, const char *textKey)
{
    return {Complaint::Kind::Failure,
            u"interrupted"_s,
            {},
            commandText(textKey, {{"[DONE]", QString::number(done)}, {"[TOTAL]", QString::number(total)}}),
            commandText("CLI_INTERRUPTED_ADVICE")};
}

} // namespace lumora
