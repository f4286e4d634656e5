// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SignalSenders.h"

#include <algorithm>

namespace Zentor::PX::Scheduler::UI {

SignalSenders::Reaction::Reaction(const SignalSenders& senders,
                                  std::initializer_list<QWidget*> widgets)
    : m_busy(senders.m_busy)
    , m_own(widgets.begin(), widgets.end())
{
    m_busy->insert(m_busy->end(), m_own.begin(), m_own.end());
}

SignalSenders::Reaction::~Reaction()
{
    for (const auto& widget : m_own) {
        Release(widget);
    }
}

void SignalSenders::Reaction::Release(const QPointer<QWidget>& widget)
{
    m_busy->erase(std::find(m_busy->begin(), m_busy->end(), widget));
    const bool isDetached = !widget.isNull() && widget->parentWidget() == nullptr;
    if (isDetached && std::find(m_busy->begin(), m_busy->end(), widget) == m_busy->end()) {
        widget->deleteLater();
    }
}

void SignalSenders::DetachFrom(const QWidget& ancestor) const
{
    for (const auto& widget : *m_busy) {
        if (!widget.isNull() && ancestor.isAncestorOf(widget)) {
            widget->hide();
            widget->setParent(nullptr);
        }
    }
}

} // namespace Zentor::PX::Scheduler::UI
