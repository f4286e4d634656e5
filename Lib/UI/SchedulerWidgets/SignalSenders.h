// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <initializer_list>
#include <memory>
#include <vector>

#include <QPointer>
#include <QWidget>

namespace Zentor::PX::Scheduler::UI {

/// Widgets that are needed until a reaction to their signal is over.
///
/// Qt touches a tool button after its click, and a radio button after its toggle. A reaction that
/// asks a question runs an event loop, in which the parents of the button may be destroyed: the
/// button is detached from them first, and deleted after the last reaction to it.
class SignalSenders {
    using Widgets = std::vector<QPointer<QWidget>>;

public:
    /// One reaction to a signal of some widgets; it may outlive the SignalSenders.
    class Reaction {
    public:
        Reaction(const SignalSenders& senders, std::initializer_list<QWidget*> widgets);
        ~Reaction();
        Reaction(const Reaction&) = delete;
        Reaction& operator=(const Reaction&) = delete;

    private:
        void Release(const QPointer<QWidget>& widget);

        const std::shared_ptr<Widgets> m_busy;
        const Widgets m_own;
    };

    /// Hides the widgets inside \a ancestor that a reaction runs for and takes them out of it.
    void DetachFrom(const QWidget& ancestor) const;

private:
    /// Once for each reaction.
    const std::shared_ptr<Widgets> m_busy = std::make_shared<Widgets>();
};

} // namespace Zentor::PX::Scheduler::UI
