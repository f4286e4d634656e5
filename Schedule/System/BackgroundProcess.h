// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <unistd.h>

#include <QProcess>

namespace Zentor::Schedule {

/// A program that a terminal's Ctrl+C does not reach.
class BackgroundProcess : public QProcess {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
protected:
    void setupChildProcess() override
    {
        setpgid(0, 0);
    }
#else
public:
    BackgroundProcess()
    {
        setChildProcessModifier([] { setpgid(0, 0); });
    }
#endif
};

} // namespace Zentor::Schedule
