// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>

class OrgKdeStatusNotifierWatcherInterface;

namespace Zentor::Desktop {

/// Whether the desktop has a tray of the StatusNotifierItem kind, which is reached over the session
/// bus. It may come later than the program, as after log-in, and go.
class StatusNotifierTray final : public QObject {
    Q_OBJECT

public:
    StatusNotifierTray();
    ~StatusNotifierTray() override;

    /// False before the desktop's first answer.
    bool IsThere() const { return m_isThere; }

    /// Whether the desktop has answered, or there is nobody to ask.
    bool IsKnown() const { return m_isKnown; }

Q_SIGNALS:
    /// IsThere() or IsKnown() is another one.
    void Changed();

private:
    void Ask();
    void TakeOver(bool isThere);

    std::unique_ptr<OrgKdeStatusNotifierWatcherInterface> m_watcher;
    bool m_isThere = false;
    bool m_isKnown = false;
};

} // namespace Zentor::Desktop
