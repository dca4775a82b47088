// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/EndSignals.h"

#ifdef Q_OS_UNIX

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

constexpr std::array Watched{SIGTERM, SIGHUP, SIGINT};
int writeEnd = -1;

extern "C" void passOn(int)
{
    const char byte = 1;
    // A full pipe already holds a request: nothing is lost when the write fails.
    [[maybe_unused]] const auto written = ::write(writeEnd, &byte, 1);
}

} // namespace

EndSignals::EndSignals(QObject *parent) : QObject(parent)
{
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) != 0)
        return;
    m_readEnd = ends[0];
    writeEnd = ends[1];
    auto *notifier = new QSocketNotifier(m_readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (::read(m_readEnd, &byte, 1) > 0) {
        }
        emit endRequested();
    });
    struct sigaction action = {};
    action.sa_handler = passOn;
    action.sa_flags = SA_RESTART;
    for (const int number : Watched)
        ::sigaction(number, &action, nullptr);
}

EndSignals::~EndSignals()
{
    if (m_readEnd < 0)
        return;
    for (const int number : Watched)
        std::signal(number, SIG_DFL);
    ::close(m_readEnd);
    ::close(writeEnd);
    writeEnd = -1;
}

#else

EndSignals::EndSignals(QObject *parent) : QObject(parent) {}
EndSignals::~EndSignals() = default;

#endif
