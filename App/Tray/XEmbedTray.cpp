// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "XEmbedTray.h"

#include <cstdlib>

#include <QSocketNotifier>

#include <xcb/xcb.h>

namespace Zentor::Desktop {
namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

/// What xcb hands over for the caller to free.
template <typename T> using Reply = std::unique_ptr<T, Free>;

xcb_window_t RootOf(xcb_connection_t* connection, int screenNumber)
{
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int number = 0; number < screenNumber && screen.rem > 1; ++number) {
        xcb_screen_next(&screen);
    }
    return screen.data->root;
}

constexpr std::uint8_t WithoutSentFlag = 0x7f;

} // namespace

void XEmbedTray::Disconnect::operator()(xcb_connection_t* connection) const
{
    xcb_disconnect(connection);
}

XEmbedTray::XEmbedTray()
{
    int screenNumber = 0;
    m_connection.reset(xcb_connect(nullptr, &screenNumber));
    if (xcb_connection_has_error(m_connection.get()) != 0) {
        return;
    }
    m_selection = Atom("_NET_SYSTEM_TRAY_S" + QByteArray::number(screenNumber));
    m_manager = Atom("MANAGER");
    // New owners tell it to the root window.
    WatchEventsOf(RootOf(m_connection.get(), screenNumber));
    auto* notifier = new QSocketNotifier(xcb_get_file_descriptor(m_connection.get()),
                                         QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        Read();
        notifier->setEnabled(xcb_connection_has_error(m_connection.get()) == 0);
    });
    Look();
    Read();
}

XEmbedTray::~XEmbedTray() = default;

std::uint32_t XEmbedTray::Atom(const QByteArray& name) const
{
    const auto cookie = xcb_intern_atom(m_connection.get(), 0,
                                        static_cast<std::uint16_t>(name.size()), name.constData());
    const Reply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(m_connection.get(), cookie, nullptr));
    return reply == nullptr ? 0 : reply->atom;
}

void XEmbedTray::WatchEventsOf(std::uint32_t window) const
{
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection.get(), window, XCB_CW_EVENT_MASK, &events);
}

void XEmbedTray::Read()
{
    // Looking may take in more events, of which the socket then says nothing.
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        const int type = event->response_type & WithoutSentFlag;
        const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event.get());
        const auto* destroyed = reinterpret_cast<const xcb_destroy_notify_event_t*>(event.get());
        if ((type == XCB_CLIENT_MESSAGE && message->type == m_manager
             && message->data.data32[1] == m_selection)
            || (type == XCB_DESTROY_NOTIFY && destroyed->window == m_owner)) {
            Look();
        }
    }
}

void XEmbedTray::Look()
{
    const auto ask = [this] {
        const Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
            m_connection.get(), xcb_get_selection_owner(m_connection.get(), m_selection), nullptr));
        return reply == nullptr ? 0 : reply->owner;
    };
    const bool wasThere = IsThere();
    m_owner = ask();
    if (m_owner != 0) {
        WatchEventsOf(m_owner);
        // It may have gone before it was watched.
        m_owner = ask();
    }
    if (IsThere() != wasThere) {
        Q_EMIT Changed();
    }
}

} // namespace Zentor::Desktop
