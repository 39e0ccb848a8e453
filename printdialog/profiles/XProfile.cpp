// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "XProfile.h"

#include "ProfileFolders.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <cstdlib>
#include <memory>
#include <xcb/randr.h>
#include <xcb/xcb.h>

namespace printdialog {

namespace {

struct Freer
{
    void operator()(void *answer) const { std::free(answer); }
};
template <class Answer>
using Owned = std::unique_ptr<Answer, Freer>;

/// Counted as the server counts its monitors; of those that show the same, the first counts. Negative when it
/// is none of them.
int numberOf(const QScreen &screen, xcb_connection_t *x, xcb_window_t root)
{
    // libxcb ends the connection of a program that uses an extension which the server lacks.
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(x, &xcb_randr_id);
    if (!extension || !extension->present)
        return 0;
    const Owned<xcb_randr_get_monitors_reply_t> monitors(
        xcb_randr_get_monitors_reply(x, xcb_randr_get_monitors(x, root, 1), nullptr));
    if (!monitors)
        return 0;
    // Whatever the scale, Qt leaves a screen's origin as it is.
    const QPoint origin = screen.geometry().topLeft();
    int number = 0;
    for (auto each = xcb_randr_get_monitors_monitors_iterator(monitors.get()); each.rem > 0;
         xcb_randr_monitor_info_next(&each), ++number) {
        if (each.data->x == origin.x() && each.data->y == origin.y())
            return number;
    }
    return -1;
}

} // namespace

QByteArray profileFromX(const QScreen &screen)
{
    const auto *application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t *x = application ? application->connection() : nullptr;
    if (!x || xcb_connection_has_error(x))
        return {};
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
    const int number = numberOf(screen, x, root);
    if (number < 0)
        return {};
    const QByteArray name =
        number == 0 ? QByteArray("_ICC_PROFILE") : "_ICC_PROFILE_" + QByteArray::number(number);
    const auto asked = xcb_intern_atom(x, 1, static_cast<uint16_t>(name.size()), name.constData());
    const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(x, asked, nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return {};
    const Owned<xcb_get_property_reply_t> property(xcb_get_property_reply(
        x,
        xcb_get_property(x, 0, root, atom->atom, XCB_GET_PROPERTY_TYPE_ANY, 0, ProfileFolders::largest / 4),
        nullptr));
    if (!property || property->format != 8 || property->bytes_after > 0)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(property.get())),
            xcb_get_property_value_length(property.get())};
}

} // namespace printdialog
