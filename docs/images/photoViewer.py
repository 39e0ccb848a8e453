# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""photoViewer.py PHOTO: a window with a photo, which it prints as GTK programs do. For the README's picture."""

import sys

import gi

gi.require_version("Gtk", "3.0")
gi.require_version("Gdk", "3.0")
from gi.repository import Gdk, GdkPixbuf, GLib, Gtk  # noqa: E402

photo = GdkPixbuf.Pixbuf.new_from_file(sys.argv[1]).apply_embedded_orientation()


def draw(operation, context, number):
    cairo = context.get_cairo_context()
    scale = max(context.get_width() / photo.get_width(), context.get_height() / photo.get_height())
    cairo.scale(scale, scale)
    Gdk.cairo_set_source_pixbuf(cairo, photo, 0, 0)
    cairo.paint()


def print_photo(window):
    page = Gtk.PageSetup()
    page.set_paper_size(Gtk.PaperSize.new("na_index-4x6"))
    for side in "left", "right", "top", "bottom":
        getattr(page, f"set_{side}_margin")(0, Gtk.Unit.POINTS)
    settings = Gtk.PrintSettings()
    operation = Gtk.PrintOperation(n_pages=1, default_page_setup=page, print_settings=settings, use_full_page=True,
                                   job_name="Lake at dusk")
    operation.connect("draw-page", draw)
    operation.run(Gtk.PrintOperationAction.PRINT_DIALOG, window)
    Gtk.main_quit()


window = Gtk.Window(title="Photo Viewer - Lake at dusk", default_width=1300, default_height=900)
header = Gtk.Box(spacing=6, margin=6)
for label in "Previous", "Next", "Rotate", "Print...":
    header.add(Gtk.Button(label=label))
height = 800
picture = Gtk.Image(pixbuf=photo.scale_simple(photo.get_width() * height // photo.get_height(), height,
                                              GdkPixbuf.InterpType.BILINEAR))
box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL)
box.add(header)
box.pack_start(picture, True, True, 0)
window.add(box)
window.show_all()
GLib.timeout_add(500, print_photo, window)
Gtk.main()
