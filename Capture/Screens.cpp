#include "Screens.h"

#include <cstdlib>
#include <memory>

#include <xcb/randr.h>
#include <xcb/xcb.h>

namespace Zentor::Capture {
namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T> using Reply = std::unique_ptr<T, Free>;

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

std::optional<Screen> ScreenOf(xcb_connection_t* connection, xcb_randr_output_t output)
{
    const Reply<xcb_randr_get_output_info_reply_t> info(xcb_randr_get_output_info_reply(
        connection, xcb_randr_get_output_info(connection, output, XCB_CURRENT_TIME), nullptr));
    if (info == nullptr || info->crtc == XCB_NONE) {
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

/// The screen may have been resized since the connection was made, whose figures stay the same.
QRect GeometryOf(xcb_connection_t* connection, const xcb_screen_t& root)
{
    const Reply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, root.root), nullptr));
    return geometry == nullptr ? QRect(0, 0, root.width_in_pixels, root.height_in_pixels)
                               : QRect(0, 0, geometry->width, geometry->height);
}

bool HasRandR(xcb_connection_t* connection)
{
    const auto* extension = xcb_get_extension_data(connection, &xcb_randr_id);
    return extension != nullptr && extension->present != 0;
}

} // namespace

std::optional<Display> CurrentDisplay()
{
    int number = 0;
    const Connection connection(xcb_connect(nullptr, &number));
    if (xcb_connection_has_error(connection.get()) != 0) {
        return std::nullopt;
    }
    const auto* root = RootOf(connection.get(), number);
    Display display;
    display.geometry = GeometryOf(connection.get(), *root);
    if (HasRandR(connection.get())) {
        display.screens = ScreensOf(connection.get(), root->root);
    }
    if (display.screens.empty()) {
        display.screens.push_back({QStringLiteral("screen"), display.geometry});
    }
    return display;
}

QRect RecordableArea(const QRect& area, const QRect& screen)
{
    const QRect part = area.intersected(screen);
    constexpr int even = ~1;
    const QRect rounded(part.topLeft(), QSize(part.width() & even, part.height() & even));
    return rounded.isEmpty() ? QRect() : rounded;
}

} // namespace Zentor::Capture
