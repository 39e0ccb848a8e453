// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WaylandParent.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtWidgets/QWidget>
#include <qpa/qplatformnativeinterface.h>

#include <cstring>
#include <memory>
#include <wayland-client.h>
#include <xdg-foreign-unstable-v2-client-protocol.h>

namespace printdialog {

namespace {

constexpr qsizetype longestHandle = 255;

template <class Type, void (*destroy)(Type *)>
struct Destroyer
{
    void operator()(Type *object) const { destroy(object); }
};
template <class Type, void (*destroy)(Type *)>
using Owner = std::unique_ptr<Type, Destroyer<Type, destroy>>;

/// The import of one window. Its objects have an event queue of their own, since Qt reads the others.
class Import : public QObject
{
public:
    Import(wl_display *display, QObject *parent)
        : QObject(parent)
        , display_(display)
        , queue_(wl_display_create_queue(display))
    {
        const auto wrapper = static_cast<wl_display *>(wl_proxy_create_wrapper(display));
        wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(wrapper), queue_.get());
        registry_.reset(wl_display_get_registry(wrapper));
        wl_proxy_wrapper_destroy(wrapper);
        static const wl_registry_listener listener = {added, [](void *, wl_registry *, uint32_t) {
                                                      }};
        wl_registry_add_listener(registry_.get(), &listener, this);
        wl_display_roundtrip_queue(display, queue_.get());
    }

    void setParentOf(wl_surface *surface, const QString &handle)
    {
        if (!importer_)
            return;
        imported_.reset(zxdg_importer_v2_import_toplevel(importer_.get(), handle.toUtf8().constData()));
        zxdg_imported_v2_set_parent_of(imported_.get(), surface);
        wl_display_flush(display_);
    }

private:
    static void added(void *data, wl_registry *registry, uint32_t name, const char *interface,
                      uint32_t /*version*/)
    {
        if (std::strcmp(interface, zxdg_importer_v2_interface.name) != 0)
            return;
        static_cast<Import *>(data)->importer_.reset(static_cast<zxdg_importer_v2 *>(
            wl_registry_bind(registry, name, &zxdg_importer_v2_interface, 1)));
    }

    wl_display *display_;
    Owner<wl_event_queue, wl_event_queue_destroy> queue_; ///< Destroyed last.
    Owner<wl_registry, wl_registry_destroy> registry_;
    Owner<zxdg_importer_v2, zxdg_importer_v2_destroy> importer_;
    Owner<zxdg_imported_v2, zxdg_imported_v2_destroy> imported_;
};

} // namespace

void setWaylandParent(QWidget *window, const QString &handle)
{
    QPlatformNativeInterface *native = QGuiApplication::platformNativeInterface();
    if (!native || !window->windowHandle() || handle.size() > longestHandle)
        return;
    auto *display = static_cast<wl_display *>(native->nativeResourceForIntegration("wl_display"));
    auto *surface =
        static_cast<wl_surface *>(native->nativeResourceForWindow("surface", window->windowHandle()));
    if (display && surface)
        (new Import(display, window))->setParentOf(surface, handle);
}

} // namespace printdialog
