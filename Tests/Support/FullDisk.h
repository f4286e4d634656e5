// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <csignal>

#include <sys/resource.h>

#include <QtGlobal>

namespace Zentor::Tests {

/// Has files that grow beyond \a bytes fail, as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY(FullDisk)

private:
    rlimit m_before{};
    void (*m_handler)(int) = nullptr;
};

} // namespace Zentor::Tests
