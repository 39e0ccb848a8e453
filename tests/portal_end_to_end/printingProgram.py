# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""A GTK program that prints two pages, each with a rectangle and its number: printingProgram.py [KEY=VALUE...], which
are print settings. It says what became of it and with which settings, as JSON on a line."""

import json
import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk  # noqa: E402

# Left, top, width and height of each page's rectangle, in points.
RECTANGLES = (72, 90, 144, 36), (100, 200, 50, 150)


def draw_page(cairo, number):
    cairo.rectangle(*RECTANGLES[number])
    cairo.fill()
    cairo.set_font_size(20)
    cairo.move_to(60, 60)
    cairo.show_text(f"Page {number + 1}")


def draw(operation, context, number):
    draw_page(context.get_cairo_context(), number)


def main():
    window = Gtk.Window(title="A program")
    window.show_all()
    settings = Gtk.PrintSettings()
    for setting in sys.argv[1:]:
        settings.set(*setting.split("=", 1))
    page = Gtk.PageSetup()
    page.set_paper_size(Gtk.PaperSize.new("iso_a4"))
    operation = Gtk.PrintOperation(n_pages=len(RECTANGLES), unit=Gtk.Unit.POINTS, use_full_page=True,
                                   print_settings=settings, default_page_setup=page)
    operation.connect("draw-page", draw)
    result = operation.run(Gtk.PrintOperationAction.PRINT_DIALOG, window)
    chosen = {}
    operation.get_print_settings().foreach(chosen.__setitem__)
    print(json.dumps([result.value_nick, chosen]))


if __name__ == "__main__":
    main()
