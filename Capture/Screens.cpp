// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Screens.h"

#include <chrono>
#include <cstdlib>
#include <memory>
#include <thread>

#include <xcb/randr.h>
#include <xcb/xcb.h>

namespace Zentor::Capture {
namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T> using Reply = std::unique_ptr<T, Free>;

std::optional<Screen> ScreenOf(xcb_connection_t* connection, xcb_randr_output_t output)
{
    const Reply<xcb_randr_get_output_info_reply_t> info(xcb_randr_get_output_info_reply(
        connection, xcb_randr_get_output_info(connection, output, XCB_CURRENT_TIME), nullptr));
    // Outputs that only seem to be there are no screens to Qt either, by whose order users count.
    if (info == nullptr || info->connection != XCB_RANDR_CONNECTION_CONNECTED
        || info->crtc == XCB_NONE) {
        return std::nullopt;
    }
    const Reply<xcb_randr_get_crtc_info_reply_t> crtc(xcb_randr_get_crtc_info_reply(
        connection, xcb_randr_get_crtc_info(connection, info->crtc, XCB_CURRENT_TIME), nullptr));
    if (crtc == nullptr || crtc->mode == XCB_NONE) {
        return std::nullopt;
    }
    const auto* name = reinterpret_cast<const char*>(xcb_randr_get_output_info_name(info.get()));
    return Screen{QString::fromUtf8(name, xcb_randr_get_output_info_name_length(info.get())),
                  QRect(crtc->x, crtc->y, crtc->width, crtc->height)};
}

std::vector<Screen> ScreensOf(xcb_connection_t* connection, xcb_window_t root)
{
    const Reply<xcb_randr_get_output_primary_reply_t> primary(xcb_randr_get_output_primary_reply(
        connection, xcb_randr_get_output_primary(connection, root), nullptr));
    const Reply<xcb_randr_get_screen_resources_current_reply_t> resources(
        xcb_randr_get_screen_resources_current_reply(
            connection, xcb_randr_get_screen_resources_current(connection, root), nullptr));
    std::vector<Screen> screens;
    if (resources == nullptr) {
        return screens;
    }
    const auto* outputs = xcb_randr_get_screen_resources_current_outputs(resources.get());
    const int count = xcb_randr_get_screen_resources_current_outputs_length(resources.get());
    for (int index = 0; index < count; ++index) {
        const auto screen = ScreenOf(connection, outputs[index]);
        const bool isPrimary = primary != nullptr && primary->output == outputs[index];
        if (screen) {
            screens.insert(isPrimary ? screens.begin() : screens.end(), *screen);
        }
    }
    return screens;
}

const xcb_screen_t* RootOf(xcb_connection_t* connection, int number)
{
    auto roots = xcb_setup_roots_iterator(xcb_get_setup(connection));
    while (roots.rem > 1 && number-- > 0) {
        xcb_screen_next(&roots);
    }
    return roots.data;
}

bool HasRandR(xcb_connection_t* connection)
{
    const auto* extension = xcb_get_extension_data(connection, &xcb_randr_id);
    return extension != nullptr && extension->present != 0;
}

/// Whether the server answers.
bool IsAnswered(xcb_connection_t* connection)
{
    const Reply<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    return answer != nullptr;
}

} // namespace

void DisplayConnection::Disconnect::operator()(xcb_connection_t* connection) const
{
    xcb_disconnect(connection);
}

DisplayConnection::DisplayConnection()
{
    // A server that its last client has left starts anew, and drops who has come meanwhile.
    constexpr int mostAttempts = 5;
    constexpr std::chrono::milliseconds untilItIsBack(50);
    for (int attempt = 1;; ++attempt) {
        m_connection.reset(xcb_connect(nullptr, &m_number));
        const int error = xcb_connection_has_error(m_connection.get());
        const bool isNamed = error != XCB_CONN_CLOSED_PARSE_ERR;
        if ((error == 0 && IsAnswered(m_connection.get())) || !isNamed || attempt == mostAttempts) {
            break;
        }
        std::this_thread::sleep_for(untilItIsBack);
    }
}

QRect DisplayConnection::Geometry() const
{
    if (xcb_connection_has_error(m_connection.get()) != 0) {
        return {};
    }
    // The figures of the connection itself are those of the time when it was made.
    const auto root = RootOf(m_connection.get(), m_number)->root;
    const Reply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(
        m_connection.get(), xcb_get_geometry(m_connection.get(), root), nullptr));
    return geometry == nullptr ? QRect() : QRect(0, 0, geometry->width, geometry->height);
}

std::optional<Display> DisplayConnection::Describe() const
{
    Display display;
    display.geometry = Geometry();
    if (display.geometry.isEmpty()) {
        return std::nullopt;
    }
    if (HasRandR(m_connection.get())) {
        display.screens = ScreensOf(m_connection.get(), RootOf(m_connection.get(), m_number)->root);
    }
    if (display.screens.empty()) {
        display.screens.push_back({QStringLiteral("screen"), display.geometry});
    }
    return display;
}

std::optional<Display> CurrentDisplay()
{
    return DisplayConnection().Describe();
}

QRect RecordableArea(const QRect& area, const QRect& screen)
{
    // QRect takes a negative width for one to the left.
    const QRect part = area.isValid() ? area.intersected(screen) : QRect();
    constexpr int even = ~1;
    const QRect rounded(part.topLeft(), QSize(part.width() & even, part.height() & even));
    return rounded.isEmpty() ? QRect() : rounded;
}

} // namespace Zentor::Capture
