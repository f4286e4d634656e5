// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FaultyDisk.h"

#include <atomic>
#include <cerrno>
#include <climits>

#include <sys/syscall.h>
#include <unistd.h>

namespace Zentor::Tests {
namespace {

struct State {
    bool isOn = false;
    FaultyDisk::Fault fault{};
    QByteArray name;
    std::atomic<int> failures{0};
};

State& CurrentState()
{
    static State state;
    return state;
}

bool Fails(int descriptor, FaultyDisk::Fault fault)
{
    State& state = CurrentState();
    if (!state.isOn || state.fault != fault) {
        return false;
    }
    char target[PATH_MAX];
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(descriptor);
    const ssize_t length = ::readlink(link.constData(), target, sizeof target);
    const QByteArray path(target, length > 0 ? static_cast<int>(length) : 0);
    const bool fails = path.mid(path.lastIndexOf('/') + 1).startsWith(state.name);
    state.failures += fails ? 1 : 0;
    return fails;
}

} // namespace

FaultyDisk::FaultyDisk(Fault fault, const QByteArray& name)
{
    State& state = CurrentState();
    state.isOn = true;
    state.fault = fault;
    state.name = name;
    state.failures = 0;
}

FaultyDisk::~FaultyDisk()
{
    CurrentState().isOn = false;
}

int FaultyDisk::Failures() const
{
    return CurrentState().failures;
}

} // namespace Zentor::Tests

// Those of an executable win over the C library's, for the libraries that it uses, too.

using Zentor::Tests::Fails;
using Zentor::Tests::FaultyDisk;

extern "C" {

Q_DECL_EXPORT ssize_t read(int descriptor, void* buffer, std::size_t size)
{
    if (Fails(descriptor, FaultyDisk::Fault::Read)) {
        errno = EIO;
        return -1;
    }
    if (Fails(descriptor, FaultyDisk::Fault::ShortRead)) {
        const bool isAtStart = ::lseek(descriptor, 0, SEEK_CUR) == 0;
        return ::syscall(SYS_read, descriptor, buffer, isAtStart ? 1UL : 0UL);
    }
    return ::syscall(SYS_read, descriptor, buffer, size);
}

Q_DECL_EXPORT int fdatasync(int descriptor)
{
    if (Fails(descriptor, FaultyDisk::Fault::Sync)) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_fdatasync, descriptor));
}

Q_DECL_EXPORT int fsync(int descriptor)
{
    if (Fails(descriptor, FaultyDisk::Fault::Sync)) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_fsync, descriptor));
}

} // extern "C"
