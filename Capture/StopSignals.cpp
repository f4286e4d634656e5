// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "StopSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>

#include <sys/eventfd.h>
#include <unistd.h>

#include <QSocketNotifier>

namespace Zentor::Capture {
namespace {

constexpr std::array Signals{SIGINT, SIGTERM, SIGHUP};

/// What the handler writes to; open as long as the handler is installed.
int descriptor = -1;

void Note(int /*signal*/)
{
    const int error = errno;
    const std::uint64_t one = 1;
    const auto written = write(descriptor, &one, sizeof one);
    static_cast<void>(written);
    errno = error;
}

void Handle(int signal, void (*handler)(int))
{
    struct sigaction action { };
    sigaction(signal, nullptr, &action);
    // Who is to outlive the terminal has been told so; the others a shell has programs in the
    // background ignore, where they are nevertheless how a recording is ended.
    if (signal != SIGHUP || action.sa_handler != SIG_IGN) {
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        sigaction(signal, &action, nullptr);
    }
}

} // namespace

StopSignals::StopSignals()
{
    descriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    auto* notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        std::uint64_t count = 0;
        if (read(descriptor, &count, sizeof count) > 0) {
            Q_EMIT Received();
        }
    });
    for (const int signal : Signals) {
        Handle(signal, Note);
    }
}

StopSignals::~StopSignals()
{
    for (const int signal : Signals) {
        Handle(signal, SIG_DFL);
    }
    close(descriptor);
}

} // namespace Zentor::Capture
