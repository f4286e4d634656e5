// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DisplayLoss.h"

#include <atomic>

#include <unistd.h>

#include <QMutex>

#include <X11/Xlib.h>

namespace Zentor::Capture {
namespace {

std::atomic<int> count = 0;

QMutex& ListenerMutex()
{
    static QMutex mutex;
    return mutex;
}

/// Whom a handler of Xlib tells, which gets no argument of ours.
DisplayLoss* listener = nullptr;

int HangInPlaceOfExit(::Display* /*display*/)
{
    ++count;
    {
        const QMutexLocker lock(&ListenerMutex());
        if (listener != nullptr) {
            QMetaObject::invokeMethod(listener, &DisplayLoss::Happened, Qt::QueuedConnection);
        }
    }
    while (true) {
        pause();
    }
}

/// As when the screen has shrunk and a part of it that is gone is read.
int Ignore(::Display* /*display*/, XErrorEvent* /*error*/)
{
    return 0;
}

} // namespace

DisplayLoss::DisplayLoss()
{
    const QMutexLocker lock(&ListenerMutex());
    listener = this;
    XSetIOErrorHandler(HangInPlaceOfExit);
    XSetErrorHandler(Ignore);
}

DisplayLoss::~DisplayLoss()
{
    const QMutexLocker lock(&ListenerMutex());
    // The next one may have been created already.
    if (listener == this) {
        listener = nullptr;
    }
}

int DisplayLoss::Count()
{
    return count;
}

} // namespace Zentor::Capture
