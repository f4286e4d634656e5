// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <cstdlib>
#include <memory>

#include <QSignalSpy>

#include <xcb/xcb.h>

#include "WidgetTest.h"
#include "XEmbedTray.h"

namespace Zentor::Tests {

using Desktop::XEmbedTray;

namespace {

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

/// A tray on the display of the test, as long as it lives: the owner of the selection.
class Tray {
public:
    Tray()
        : m_connection(xcb_connect(nullptr, nullptr))
        , m_window(xcb_generate_id(m_connection.get()))
    {
        auto* connection = m_connection.get();
        const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
        xcb_create_window(connection, 0, m_window, screen->root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        const xcb_atom_t selection = Atom("_NET_SYSTEM_TRAY_S0");
        xcb_set_selection_owner(connection, m_window, selection, XCB_CURRENT_TIME);
        xcb_client_message_event_t message = {};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = screen->root;
        message.type = Atom("MANAGER");
        message.data.data32[1] = selection;
        message.data.data32[2] = m_window;
        xcb_send_event(connection, 0, screen->root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                       reinterpret_cast<const char*>(&message));
        Wait();
    }

private:
    xcb_atom_t Atom(const QByteArray& name) const
    {
        auto* reply = xcb_intern_atom_reply(m_connection.get(),
                                            xcb_intern_atom(m_connection.get(), 0,
                                                            static_cast<std::uint16_t>(name.size()),
                                                            name.constData()),
                                            nullptr);
        const xcb_atom_t atom = reply->atom;
        std::free(reply);
        return atom;
    }

    /// Until the server has done what was asked.
    void Wait() const
    {
        std::free(xcb_get_input_focus_reply(m_connection.get(),
                                            xcb_get_input_focus(m_connection.get()), nullptr));
    }

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_window_t m_window;
};

} // namespace

class tst_XEmbedTray : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void findsNoneWithoutOne() { QVERIFY(!XEmbedTray().IsThere()); }

    void findsOne()
    {
        const Tray tray;
        QVERIFY(XEmbedTray().IsThere());
    }

    void followsOneThatComesAndGoes()
    {
        const XEmbedTray watched;
        const QSignalSpy changed(&watched, &XEmbedTray::Changed);
        for (int round = 1; round <= 2; ++round) {
            auto tray = std::make_unique<Tray>();
            QTRY_VERIFY_WITH_TIMEOUT(watched.IsThere(), Patience);
            QCOMPARE(changed.count(), 2 * round - 1);
            tray.reset();
            QTRY_VERIFY_WITH_TIMEOUT(!watched.IsThere(), Patience);
            QCOMPARE(changed.count(), 2 * round);
        }
    }

    void findsNoneWithoutADisplay()
    {
        const QByteArray display = qgetenv("DISPLAY");
        qputenv("DISPLAY", ":none");
        const XEmbedTray watched;
        qputenv("DISPLAY", display);
        QVERIFY(!watched.IsThere());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_XEmbedTray)

#include "tst_XEmbedTray.moc"
