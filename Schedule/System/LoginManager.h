// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>

#include "HostData.h"

class OrgFreedesktopLogin1ManagerInterface;

namespace Zentor::Schedule {

/// Turns the machine off by systemd-logind, and hears from it when others do. Nothing here waits
/// for it, and it may be missing, or appear later.
class LoginManager final : public QObject {
    Q_OBJECT

public:
    explicit LoginManager(QObject* parent = nullptr);
    ~LoginManager() override;

    /// Asks whether \a action is possible, if need be with a password. Answered by Answered().
    void Ask(PX::PowerAction action);

    /// Does \a action; the user may be asked for a password.
    void Perform(PX::PowerAction action);

Q_SIGNALS:
    /// \a action is possible or not. It is not where nobody answers, nor when it is none of the
    /// machine's.
    void Answered(Zentor::PX::PowerAction action, bool isPossible);
    /// \a action was not performed; \a reason is for the user.
    void Refused(Zentor::PX::PowerAction action, const QString& reason);

    /// The machine is about to sleep, or (false) has slept.
    void AboutToSleep(bool isAbout);
    /// The machine is about to be shut down or restarted, or (false) is not any longer.
    void AboutToShutDown(bool isAbout);

private:
    const std::unique_ptr<OrgFreedesktopLogin1ManagerInterface> m_manager;
};

} // namespace Zentor::Schedule
