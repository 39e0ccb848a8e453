# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""PortalEndToEndTest.py CUPSD_RUN PPD BACK_END: programs print through Debian's xdg-desktop-portal and the dialog, on a
private print server."""

import itertools
import json
import os
import pathlib
import re
import subprocess
import sys
import unittest

from desktop import NAME, Desktop, Refused, until

# Debian has GTK's bindings for its own Python only.
PYTHON = "/usr/bin/python3"
CUPSD_RUN, PPD, BACK_END = sys.argv[1:]
if "CORVEL_PRINTED" not in os.environ:
    os.execv(CUPSD_RUN, [CUPSD_RUN, PPD, PYTHON, __file__, *sys.argv[1:]])

try:
    import cairo
    from gi.repository import Gio, GLib
    from printingProgram import RECTANGLES, draw_page
except (ImportError, ValueError) as error:
    sys.exit(f"{error}: ./test installs it")

A4 = 595.28, 841.89
PRINTED = pathlib.Path(os.environ["CORVEL_PRINTED"])
HERE = pathlib.Path(__file__).parent
PORTAL = "org.freedesktop.portal.Desktop"
PORTAL_PATH = "/org/freedesktop/portal/desktop"
RESOLUTION = 144
A4, A5 = (595, 842), (420, 595)  # points


def rectangle(page):
    """Left, top, width and height of the rectangle on a page that pdftoppm has drawn, in points. Text is thinner."""
    head, size, _, pixels = page.split(b"\n", 3)
    width, height = map(int, size.split())
    dark = pixels.translate(bytes(level < 128 for level in range(256)))
    rows = [dark[width * y:width * (y + 1)] for y in range(height)]
    wide = b"\1" * (RESOLUTION // 4)
    lines = [y for y in range(height) if wide in rows[y]]
    left, right = (find(wide) for find in (rows[lines[0]].find, rows[lines[0]].rfind))
    return [pixel * 72 / RESOLUTION for pixel in
            (left, lines[0], right + len(wide) - left, lines[-1] + 1 - lines[0])]


class Job:
    """What the printer got."""

    def __init__(self, folder):
        self.title, self.options, self.copies = ((folder / name).read_text() for name in ("title", "options", "copies"))
        self.document = folder / "document"
        texts = self.output("pdftotext", self.document, "-").decode().split("\f")[:-1]
        self.pages = [text.strip() for text in texts]

    @staticmethod
    def output(*command):
        return subprocess.run(command, stdout=subprocess.PIPE, check=True).stdout

    def sheets(self):
        """Of paper that comes out, each page being on its own."""
        return len(self.pages) * int(self.copies)

    def size(self):
        """Of the first page, in points."""
        info = self.output("pdfinfo", self.document).decode()
        line = next(line for line in info.splitlines() if line.startswith("Page size:"))
        return tuple(round(float(word)) for word in line.split()[2:5:2])

    def rectangles(self):
        return [rectangle(self.output("pdftoppm", "-r", str(RESOLUTION), "-gray", "-f", str(page), "-l", str(page),
                                  "-singlefile", self.document)) for page in range(1, len(self.pages) + 1)]


class PortalEndToEndTest(unittest.TestCase):
    jobs, requests = set(), itertools.count()

    @classmethod
    def setUpClass(cls):
        cls.desktop = DESKTOP
        cls.bus = Gio.bus_get_sync(Gio.BusType.SESSION)

    def owner(self):
        """The back end's own name on the bus; none when it does not run."""
        names = self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ListNames",
                                   None, None, 0, 5000, None).unpack()[0]
        return NAME in names and self.bus.call_sync(
            "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetNameOwner",
            GLib.Variant("(s)", (NAME,)), None, 0, 5000, None).unpack()[0]

    def program(self, *settings):
        """A program that prints, and its dialog."""
        before = self.desktop.dialogs()
        program = self.desktop.child(PYTHON, f"{HERE}/printingProgram.py", *settings,
                                     environment={"GTK_USE_PORTAL": "1"}, stdout=subprocess.PIPE)
        return program, self.desktop.new_dialog(before)

    def result(self, program):
        """What became of the print, and the settings that the program has from it."""
        line = program.stdout.readline()
        self.assertEqual(program.wait(10), 0)
        return json.loads(line)

    def next_job(self):
        def new_jobs():
            return {path for path in PRINTED.iterdir() if not path.name.startswith(".")} - self.jobs

        (folder,) = until(new_jobs, f"a job\n{self.desktop.log()}")
        self.jobs.add(folder)
        return Job(folder)

    def assert_drawn_at(self, found, expected, lost=36 / RESOLUTION):
        """Half a dot may be lost."""
        for one, other in zip(found, expected):
            self.assertAlmostEqual(one, other, delta=lost)

    def assert_drawn(self, job, *numbers):
        """It has these pages of the program's, from 1, where the program drew them."""
        self.assertEqual(job.pages, [f"Page {number}" for number in numbers])
        for found, number in zip(job.rectangles(), numbers):
            self.assert_drawn_at(found, RECTANGLES[number - 1])

    def test_prints_what_the_program_draws(self):
        program, dialog = self.program("duplex=horizontal")
        self.assertIn(self.desktop.parent_of(dialog), self.desktop.xdotool("search", "--name", "^A program$").split())
        self.desktop.press_until_gone(dialog, "Return")
        self.assertEqual(self.result(program)[0], "apply")
        job = self.next_job()
        self.assert_drawn(job, 1, 2)
        self.assertEqual(job.size(), A4)
        self.assertIn("Duplex=DuplexNoTumble", job.options.split())

    def test_prints_what_is_chosen_in_the_dialog(self):
        program, dialog = self.program()
        self.desktop.press(dialog, "alt+s", "Down", "alt+c", "ctrl+a", "3")
        self.desktop.press_until_gone(dialog, "Return")
        settings = self.result(program)[1]
        job = self.next_job()
        self.assert_drawn(job, 1, 2)
        self.assertEqual((job.size(), job.sheets()), (A5, 6))
        self.assertIn("PageSize=A5", job.options.split())
        self.assertEqual(settings["n-copies"], "1")  # the program would make more pages of it

    # What the program does itself is not done again, and what it was told not to do is done. The pages' texts, the
    # copies of each page, and what the rectangle is to what the program drew.
    def test_does_everything_once(self):
        for settings, pages, copies, scale in (
                (("n-copies=2", "collate=true"), ["1", "2"], 2, 1),  # the others do not inherit the copies
                (("print-pages=ranges", "page-ranges=1"), ["2"], 1, 1),
                (("page-set=odd",), ["1"], 1, 1),
                (("reverse=true",), ["2", "1"], 1, 1),
                (("reverse=true", "duplex=vertical"), ["1", "2"], 1, 1),  # the front comes first
                (("number-up=2",), ["1 2"], 1, None),
                (("scale=50",), ["1", "2"], 1, 0.5)):
            with self.subTest(settings):
                program, dialog = self.program(*settings)
                self.desktop.press_until_gone(dialog, "Return")
                self.assertEqual(self.result(program)[0], "apply")
                job = self.next_job()
                self.assertEqual(([" ".join(re.findall("[0-9]", page)) for page in job.pages], job.copies),
                                 (pages, str(copies)))
                for found, number in zip(job.rectangles() if scale else (), pages):
                    # A page that is smaller than its sheet lies in the middle. The paper's size is rounded.
                    margins = [(1 - scale) / 2 * side for side in A4] + [0, 0]
                    self.assert_drawn_at(found, [margin + scale * length for margin, length in
                                                 zip(margins, RECTANGLES[int(number) - 1])],
                                         36 / RESOLUTION if scale == 1 else 0.5)

    def test_is_cancelled(self):
        program, dialog = self.program()
        self.desktop.press_until_gone(dialog, "Escape")
        self.assertEqual(self.result(program)[0], "cancel")

    def test_outlives_a_killed_program(self):
        program, dialog = self.program()
        owner = self.owner()
        program.kill()
        until(lambda: dialog not in self.desktop.dialogs(), "the dialog to go")
        self.assertTrue(owner)
        self.assertEqual(self.owner(), owner)

    def test_serves_two_at_once(self):
        (first, its), (second, other) = (self.program("print-pages=ranges", f"page-ranges={page}") for page in (0, 1))
        self.desktop.press_until_gone(other, "Return")
        self.assertEqual(self.result(second)[0], "apply")
        self.assert_drawn(self.next_job(), 2)
        self.desktop.press_until_gone(its, "Return")
        self.assertEqual(self.result(first)[0], "apply")
        self.assert_drawn(self.next_job(), 1)

    def print_document(self):
        """Hands a finished document to the portal. Returns the request's path and a list that gets its answer."""
        document = self.desktop.folder / "document.pdf"
        with cairo.PDFSurface(document, *A4) as surface:
            for number in range(len(RECTANGLES)):
                draw_page(cairo.Context(surface), number)
                surface.show_page()
        answers, token = [], f"request{next(self.requests)}"
        path = f"{PORTAL_PATH}/request/{self.bus.get_unique_name()[1:].replace('.', '_')}/{token}"
        subscription = self.bus.signal_subscribe(PORTAL, "org.freedesktop.portal.Request", "Response", path, None, 0,
                                                 lambda *call: answers.append(call[5].unpack()[0]))
        self.addCleanup(self.bus.signal_unsubscribe, subscription)
        with open(document, "rb") as file:
            descriptors = Gio.UnixFDList.new()
            options = {"handle_token": GLib.Variant("s", token)}
            arguments = GLib.Variant("(ssha{sv})", ("", "Finished", descriptors.append(file.fileno()), options))
            self.bus.call_with_unix_fd_list_sync(PORTAL, PORTAL_PATH, "org.freedesktop.portal.Print", "Print",
                                                 arguments, None, 0, 10000, descriptors, None)
        return path, answers

    def answer(self, answers):
        def received():
            while GLib.MainContext.default().iteration(False):
                pass
            return answers
        return until(received, "the portal's answer")[0]

    def test_prints_a_finished_document(self):
        answers = self.print_document()[1]
        self.desktop.press_until_gone(self.desktop.new_dialog(), "Return")
        self.assertEqual(self.answer(answers), 0)
        self.assert_drawn(self.next_job(), 1, 2)

    def test_is_closed_by_the_program(self):
        path, _ = self.print_document()
        dialog, owner = self.desktop.new_dialog(), self.owner()
        self.bus.call_sync(PORTAL, path, "org.freedesktop.portal.Request", "Close", None, None, 0, 5000, None)
        until(lambda: dialog not in self.desktop.dialogs(), "the dialog to go")
        self.assertEqual(self.owner(), owner)


try:
    DESKTOP = Desktop(BACK_END)
except Refused as reason:
    print(f"SKIP: {reason}")
    sys.exit(77)
try:
    unittest.main(argv=sys.argv[:1])
finally:
    DESKTOP.end()
