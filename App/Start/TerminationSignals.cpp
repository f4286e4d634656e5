// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "TerminationSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>

#include <sys/eventfd.h>
#include <unistd.h>

#include <QSocketNotifier>

#include <glog/logging.h>

namespace Zentor::Desktop {
namespace {

constexpr std::array Signals{SIGTERM, SIGINT, SIGHUP};

/// What the handler writes to. Written before the handler is installed, never closed while it is.
int eventDescriptor = -1;

/// Does what is allowed at any moment: it makes the descriptor readable.
void Note(int /*signal*/)
{
    const int error = errno;
    const std::uint64_t one = 1;
    const auto written = write(eventDescriptor, &one, sizeof one);
    static_cast<void>(written);
    errno = error;
}

void SetHandler(int signal, void (*handler)(int))
{
    struct sigaction action { };
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

/// Who is to outlive the terminal has been told so. The others a shell has programs in the
/// background ignore, which must end by them nevertheless.
bool IsToBeIgnored(int signal)
{
    struct sigaction action { };
    sigaction(signal, nullptr, &action);
    return signal == SIGHUP && action.sa_handler == SIG_IGN;
}

} // namespace

TerminationSignals::TerminationSignals()
{
    eventDescriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (eventDescriptor < 0) {
        LOG(WARNING) << "Zentor::Desktop::TerminationSignals: error=" << std::strerror(errno);
        return;
    }
    auto* notifier = new QSocketNotifier(eventDescriptor, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        std::uint64_t count = 0;
        if (read(eventDescriptor, &count, sizeof count) > 0) {
            Q_EMIT Received();
        }
    });
    for (const int signal : Signals) {
        if (!IsToBeIgnored(signal)) {
            SetHandler(signal, Note);
        }
    }
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : Signals) {
        if (!IsToBeIgnored(signal)) {
            SetHandler(signal, SIG_DFL);
        }
    }
    if (eventDescriptor >= 0) {
        close(eventDescriptor);
        eventDescriptor = -1;
    }
}

} // namespace Zentor::Desktop
