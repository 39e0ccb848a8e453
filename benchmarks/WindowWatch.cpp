// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WindowWatch.h"

#include "BenchTable.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <xcb/xcb.h>

namespace {

constexpr int stripNumber = 24;
constexpr quint16 smallestDialog = 200;
constexpr int watchPatience = 15000; ///< milliseconds

template <class Reply>
using Owned = std::unique_ptr<Reply, void (*)(void *)>;

template <class Reply>
Owned<Reply> owned(Reply *reply)
{
    return {reply, std::free};
}

/// Waits for the condition's first value.
std::optional<double> timeOf(const std::function<bool()> &condition)
{
    for (const QDeadlineTimer deadline(watchPatience); !deadline.hasExpired(); QThread::usleep(1000)) {
        if (condition())
            return monotonicMilliseconds();
    }
    return std::nullopt;
}

} // namespace

WindowWatch::WindowWatch(const QByteArray &display)
    : connection_(xcb_connect(display.constData(), nullptr), xcb_disconnect)
{
}

WindowWatch::Windows WindowWatch::windows() const
{
    Windows found;
    xcb_connection_t *connection = connection_.get();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto tree = owned(xcb_query_tree_reply(connection, xcb_query_tree(connection, root), nullptr));
    for (int i = 0; tree && i < xcb_query_tree_children_length(tree.get()); ++i) {
        const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
        const auto attributes = owned(xcb_get_window_attributes_reply(
            connection, xcb_get_window_attributes(connection, window), nullptr));
        const auto place =
            owned(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
        if (attributes && place && attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
            place->width >= smallestDialog && place->height >= smallestDialog)
            found.push_back(window);
    }
    return found;
}

std::vector<WindowWatch::Strip> WindowWatch::strips(quint32 window) const
{
    std::vector<Strip> result;
    xcb_connection_t *connection = connection_.get();
    const auto place =
        owned(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    for (int i = 0; place && i < stripNumber; ++i) {
        const auto y = static_cast<qint16>(place->height * i / stripNumber);
        const auto image = owned(xcb_get_image_reply(
            connection,
            xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, y, place->width, 1, ~0U),
            nullptr));
        if (!image)
            continue;
        const auto *pixels = reinterpret_cast<const QRgb *>(xcb_get_image_data(image.get()));
        result.emplace_back(pixels, pixels + place->width);
    }
    return result;
}

std::optional<double> WindowWatch::painted(const Windows &before) const
{
    return timeOf([&] {
        return std::ranges::any_of(windows(), [&](quint32 window) {
            return std::ranges::find(before, window) == before.cend() &&
                   std::ranges::any_of(strips(window), [](const Strip &strip) {
                       return std::ranges::any_of(strip, [&](QRgb pixel) { return pixel != strip.front(); });
                   });
        });
    });
}

std::optional<double> WindowWatch::painted(QRgb color) const
{
    const auto isAlike = [color](QRgb pixel) {
        constexpr int tolerance = 60;
        return std::abs(qRed(pixel) - qRed(color)) < tolerance &&
               std::abs(qGreen(pixel) - qGreen(color)) < tolerance &&
               std::abs(qBlue(pixel) - qBlue(color)) < tolerance;
    };
    return timeOf([&] {
        return std::ranges::any_of(windows(), [&](quint32 window) {
            return std::ranges::any_of(
                strips(window), [&](const Strip &strip) { return std::ranges::any_of(strip, isAlike); });
        });
    });
}

bool WindowWatch::isBackTo(const Windows &before) const
{
    return timeOf([&] { return windows() == before; }).has_value();
}
