// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>

#include <QObject>

struct xcb_connection_t;

namespace Zentor::Desktop {

/// Whether an X display has a tray of the XEmbed kind, the owner of the selection
/// _NET_SYSTEM_TRAY_S0 or that of another screen. It may come and go.
///
/// It has a connection to the display of its own; without a display there is no tray.
class XEmbedTray final : public QObject {
    Q_OBJECT

public:
    XEmbedTray();
    ~XEmbedTray() override;

    bool IsThere() const { return m_owner != 0; }

Q_SIGNALS:
    /// IsThere() is another one.
    void Changed();

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const;
    };

    std::uint32_t Atom(const QByteArray& name) const;
    void WatchEventsOf(std::uint32_t window) const;
    /// Takes in what has happened on the display.
    void Read();
    void Look();

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    /// The selection whose owner is the tray.
    std::uint32_t m_selection = 0;
    /// The message by which a new owner tells of itself.
    std::uint32_t m_manager = 0;
    /// The window of the tray, or 0.
    std::uint32_t m_owner = 0;
};

} // namespace Zentor::Desktop
