# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""What corvel-print prints and lists, without a print server."""

import json
import os
import pathlib
import re
import shutil
import struct
import sys
import unittest
import zlib

from program import PHOTO, PPD, SIBLING_PPD, ProgramTest, run, shell

MODES = "constraint", "settings"
JPEG = pathlib.Path(PHOTO).read_bytes()
CHOICES = (  # options, and the option and choice that one of them becomes
    (["Red=+12"], "Red", "12"),
    (["Red=012"], "Red", "12"),
    (["SharpnessIntensity=1.5"], "SharpnessIntensity", "1.50"),
    (["Red=1", "Red=2"], "Red", "2"),
    (["Resolution=300x600dpi"], "Resolution", "300x600dpi"),  # of no panel
    (["PageSize=5x7"], "PageSize", "5x7"),
    (["Quality=Fine", "Overcoat=Matte"], "Overcoat", "Matte"))  # a conflict resolved before


def option_arguments(options):
    return [argument for option in options for argument in ("-o", option)]


def listed_options(*arguments):
    return {option["keyword"]: option for option in json.loads(run(*arguments, "--list-options", "--json").out)}


def damaged_png():
    def chunk(kind, data, damage=0):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data) ^ damage)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", 64, 64, 8, 0, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(bytes(65 * 64)), damage=1) + chunk(b"IEND", b""))


def top_left(path, columns=300, rows=400):
    """The pixels in this corner of a PNG of 8 bits, row by row."""
    data = path.read_bytes()
    parts, place = b"", 8
    while place < len(data):
        size, kind = struct.unpack(">I4s", data[place:place + 8])
        parts += data[place + 8:place + 8 + size] if kind == b"IDAT" else b""
        place += 12 + size
    depth = {2: 3, 6: 4}[data[25]]  # bytes of a pixel
    stride = depth * struct.unpack(">I", data[16:20])[0]
    raw, above, pixels = zlib.decompress(parts), bytes(stride), []
    for y in range(rows):
        kind, *row = raw[y * (stride + 1):(y + 1) * (stride + 1)]
        for i, up in enumerate(above):
            left, corner = (row[i - depth], above[i - depth]) if i >= depth else (0, 0)
            paeth = min((left, up, corner), key=lambda value: abs(left + up - corner - value))
            row[i] = row[i] + (0, left, up, (left + up) // 2, paeth)[kind] & 255
        above = row
        pixels.append(row[:depth * columns])
    return pixels


class CommandLineTest(ProgramTest):
    def test_prints_the_photo_with_its_ticket(self):
        for mode in MODES:
            listed = listed_options("--mode", mode).values()
            expected = {option["keyword"]: option["default"] for option in listed if option["panel"]}
            self.assertLess({"Red", "Gamma", "Contrast"}, set(expected))
            expected |= {"PageSize": "4x6.Fullbleed", "Red": "12", "Gamma": "-3"}
            done = self.print("--overwrite", "--mode", mode, "-d", "built-in", "-n", "3", "-o", "Red=12", "--option",
                              "Gamma=-3", pathlib.Path(PHOTO).as_uri())
            self.assert_quiet(done)
            self.assertEqual(done.out, f"Printed sample.jpg: {self.out}/sample.pdf\n")
            self.assertEqual(self.ticket(), expected)
            self.assertEqual(self.ticket("summary")["Red"], "12")
            self.assertEqual(len(self.ticket("summary")), len(expected) - 1)  # what the panels say
            for entry, value in ("printer", "built-in"), ("document", PHOTO), ("copies", 3):
                self.assertEqual(self.ticket(entry), value)
            self.assertIn(JPEG, (self.out / "sample.pdf").read_bytes())

    def test_takes_choices_in_any_spelling(self):
        for options, key, choice in CHOICES:
            for mode in MODES:
                with self.subTest(options, mode=mode):
                    self.assert_quiet(self.print("--mode", mode, "--overwrite", PHOTO, *option_arguments(options)))
                    self.assertEqual(self.ticket()[key], choice)
                    shutil.rmtree(self.out)

    def test_places_the_photo(self):
        # The sample has 1800 x 1200 pixels, 300 to an inch; of 360 x 504 points 9 at each edge stay white.
        for arguments, where in (([], [18, 9, 342, 495]), (["--scaling", "fill"], [9, -4.5, 351, 508.5]),
                                 (["--scaling=fill", "--crop=0,50"], [9, -18, 351, 495]),  # the left: the page's top
                                 (["--scaling", "actual"], [36, 36, 324, 468])):
            self.assert_quiet(self.print("--overwrite", "-o", "PageSize=5x7", PHOTO, *arguments))
            pdf = (self.out / "sample.pdf").read_bytes().decode("latin-1")
            a, b, c, d, x, y = map(float, re.search("n\n(.*) (.*) (.*) (.*) (.*) (.*) cm", pdf).groups())
            corners = sorted((x, x + a + c)) + sorted((y, y + b + d))
            self.assertEqual([round(corners[i], 1) for i in (0, 2, 1, 3)], where)

    # The photo is a JPEG file whose name is that of its page.
    def test_replaces_no_file_of_others(self):
        self.out.mkdir()
        photo = self.stored("out/sample.pdf", JPEG)
        for option, name in ([], "sample-2"), (["--dry-run"], "sample-3"), (["--overwrite"], "sample-2"), ([], "sample-3"):
            done = self.print(*option, photo)
            self.assertEqual(done.err, "")
            self.assertIn(f"/{name}.pdf", done.out)
            self.assertEqual(photo.read_bytes(), JPEG)
        self.assertEqual(self.names(), ["sample-2.pdf", "sample-2.ticket.json", "sample-3.pdf", "sample-3.ticket.json",
                                        "sample.pdf"])

    def test_names_what_was_printed_before_a_failure(self):
        second = self.stored("second.jpg", JPEG)
        (self.out / "second.pdf").mkdir(parents=True)
        done = self.print("--overwrite", PHOTO, second, PHOTO)
        self.assertEqual(done.out.count("\n"), 1)
        self.assert_refused(done._replace(out=""), 1, "second.pdf", "sample.jpg")
        self.assertEqual(self.names(), ["sample.pdf", "sample.ticket.json", "second.pdf"])

    # Each with a separate line; with --no-check they are printed as they are.
    def test_leaves_damaged_photos_out(self):
        middle = len(JPEG) // 2
        photos = (self.stored("damaged.jpg", JPEG[:middle] + bytes(4096) + JPEG[middle + 4096:]),
                  self.stored("damaged.png", damaged_png()), PHOTO)
        done = self.print(*photos)
        self.assertEqual((done.status, done.out.count("\n"), done.err.count("\n")), (1, 1, 2))
        for line, name in zip(done.err.splitlines(), ("damaged.jpg", "damaged.png")):
            self.assertIn(name, line)
        self.assertEqual(self.names(), ["sample.pdf", "sample.ticket.json"])
        plan = run("--dry-run", "--json", *photos)
        self.assertEqual((plan.status, plan.err, len(json.loads(plan.out))), (1, done.err, 1))
        self.assertEqual(self.print("--no-check", photos[0]).err, "")
        self.assertIn("damaged.pdf", self.names())

    def test_lists_options(self):
        options = listed_options("-o", "Red=7", "--mode", "settings")
        red = options["Red"]
        self.assertEqual((red["choice"], red["default"], red["panel"]), ("7", "0", "Color Adjustments"))
        self.assertEqual(len(red["choices"]), 51)
        self.assertEqual(options["Overcoat"]["choices"][1], {"keyword": "Matte", "text": "Matte"})
        self.assertIsNone(options["PageSize"]["panel"])
        text = run("--list-options")
        self.assertEqual((text.status, text.out.count("\n")), (0, len(options) + 1))
        self.assertIn("-25 to 25\n", text.out)
        self.assertIn("  Standard, Fine\n", text.out)

    def test_prints_on_custom_paper(self):
        laser = "--ppd", os.environ["CORVEL_LASER_PPD"]
        sizes = listed_options(*laser)["PageSize"]["customMillimeters"]
        self.assertEqual(sizes, {"smallest": [70.56, 105.83], "largest": [215.9, 423.33]})
        self.assertIn("Custom.WIDTHxHEIGHTmm (from 70.6 × 105.8 mm to 215.9 × 423.3 mm)\n",
                      run(*laser, "--list-options").out)
        self.assertNotIn("customMillimeters", listed_options()["PageSize"])
        for spelled in "100x150mm", "10x15cm", "283.4646x425.1969":
            self.assertEqual(listed_options(*laser, "-o", f"PageSize=Custom.{spelled}")["PageSize"]["choice"],
                             "Custom.100x150mm")
        for spelled in "10x150mm", "100x150furlong", "nanx150mm":
            done = run(*laser, "--list-options", "-o", f"PageSize=Custom.{spelled}")
            self.assertEqual(done.status, 1)
            self.assertIn(f'no choice "Custom.{spelled}"', done.err)
            self.assertIn("Custom.WIDTHxHEIGHTmm (from 70.6 × 105.8 mm to 215.9 × 423.3 mm).", done.err)

    def test_shows_the_summary(self):
        arguments = "-o", "Red=7", "--scaling", "fill", "--summary"
        summary = run(*arguments).out
        self.assertTrue(summary.startswith("Paper size: 4 x 6 in, borderless\nCopies: 1\nPlacement: Fill the page\n"
                                           "Brightness: 0\n"), summary)
        self.assertIn("\nRed: 7\n", summary)
        entries = json.loads(run(*arguments, "--json").out)
        self.assertEqual((entries["Red"], entries["Copies"]), ("7", "1"))
        self.assertIn("\nRed: 7\n", self.print("-o", "Red=7", "--summary", PHOTO).out)

    def test_takes_pictures_of_the_dialog(self):
        def picture(folder, page):
            return (self.folder / folder / f"{page}.png").read_bytes()
        for folder, options in ("plain", []), ("chosen", ["Red=7", "Quality=Fine"]):
            done = run(*option_arguments(options), "--screenshot", self.folder / folder, PHOTO)
            self.assert_quiet(done)
            self.assertEqual(done.out, "")
            self.assertEqual(sorted(path.name for path in (self.folder / folder).iterdir()),
                             ["coloradjust.png", "matte.png", "options.png", "sharpness.png", "summary.png"])
        width, height = struct.unpack(">II", picture("plain", "summary")[16:24])
        self.assertTrue(width > 500 and height > 400, (width, height))
        self.assertNotEqual(picture("plain", "coloradjust"), picture("plain", "summary"))
        self.assertNotEqual(picture("plain", "coloradjust"), picture("chosen", "coloradjust"))
        # The photo has the adjustments on every page.
        self.assertNotEqual(picture("plain", "sharpness"), picture("chosen", "sharpness"))
        # A page that is wider than the earlier ones does not shift its picture.
        folder = self.folder / "spanish"
        run("--ppd", SIBLING_PPD, "--screenshot", folder, PHOTO, LANG="es_ES.UTF-8", LC_ALL="")
        self.assertEqual(top_left(folder / "coloradjust.png"), top_left(folder / "matte.png"))

    def test_saves_pictures_of_pages(self):
        first = self.out / "page.png"

        def preview(*arguments):
            return run("--preview", first, *arguments)

        self.assert_refused(preview("-o", "Red=99", PHOTO), 1, '"Red"')
        self.assertFalse(self.out.exists())
        bad = self.stored("bad.jpg", b"no photo"), self.stored("damaged.png", damaged_png())
        done = preview(PHOTO, bad[0], PHOTO, bad[1], PHOTO)
        self.assertEqual((done.status, done.out.count("\n"), done.err.count("\n")), (1, 3, 2))
        for line, photo in zip(done.err.splitlines(), bad):
            self.assertIn(photo.name, line)
        self.assertEqual(self.names(), ["page-3.png", "page-5.png", "page.png"])
        plain = first.read_bytes()
        self.assertEqual((self.out / "page-5.png").read_bytes(), plain)
        self.assert_refused(preview("-o", "Red=9", PHOTO), 1, "page.png", "--overwrite")
        self.assertEqual(first.read_bytes(), plain)
        self.assert_quiet(preview("--overwrite", "-o", "Red=9", PHOTO))
        self.assertNotEqual(first.read_bytes(), plain)
        # Also when only a later name is taken.
        first.unlink()
        self.assert_refused(preview(PHOTO, PHOTO, PHOTO), 1, "page-3.png")
        self.assertFalse(first.exists())
        # A photo that has the picture's name, and one that has it as a second name.
        photo = self.stored("photo.jpg", JPEG)
        first.hardlink_to(photo)
        for named in first, photo:
            self.assert_refused(preview("--overwrite", named), 1, "page.png", "photos")
        self.assertEqual(photo.read_bytes(), JPEG)

    def test_saves_pictures_of_sheets(self):
        first = self.out / "sheet.png"
        done = run("--preview", first, "--layout", "2x2,caption=name", PHOTO, PHOTO, PHOTO, PHOTO, PHOTO)
        self.assert_quiet(done)
        self.assertEqual(self.names(), ["sheet-2.png", "sheet.png"])
        self.assertIn(" 3 more", done.out.splitlines()[0])
        captioned = first.read_bytes()
        self.assert_quiet(run("--overwrite", "--preview", first, "--layout", "2x2,caption=date", *[PHOTO] * 4))
        self.assertNotEqual(first.read_bytes(), captioned)
        self.assert_refused(run("--overwrite", "--preview", first, "--layout", "2x2", "--size", "9x13cm", PHOTO),
                            1, "13 cm")

    def test_help_and_version_go_to_standard_output(self):
        done = run("--help")
        self.assertEqual(done.status, 0)
        for part in ("--printer QUEUE", "--ppd FILE", "--mode constraint|settings", "-o, --option KEY=CHOICE",
                     "--output DIR", "--batch", "--list-printers", "--list-options", "--summary", "--json",
                     "--preview FILE.png", "--screenshot DIR", "--version"):
            self.assertIn(part, done.out)
        self.assertTrue(run("--version").out.startswith("corvel-print "))

    def test_keeps_control_characters_from_the_terminal(self):
        photo = self.stored("a\x1b[31m\nb\tc\x9b.jpg", JPEG)
        self.assertNotRegex(run("--dry-run", "--json", photo).out, "[\x1b\x9b]")
        done = self.print(photo)
        self.assertEqual(done.status, 0)
        self.assertRegex(done.out, "\\APrinted a\\[31m b c.jpg: [^\n\x1b\x9b]*.pdf\n\\Z")
        odd = self.stored("odd.ppd", pathlib.Path(PPD).read_bytes().replace(
            b"*OpenUI *Quality/Print Quality", b"*OpenUI *Quality/Print\xc2\x9b[31m Quality"))
        for more in [], ["--json"]:
            listed = run("--ppd", odd, "--list-options", *more).out
            self.assertIn("Print", listed)
            self.assertNotIn("\x9b", listed)

    # Also when the program's parent ignores SIGCHLD.
    def test_hears_of_its_helpers_end(self):
        self.assertEqual(shell('env --ignore-signal=CHLD "$@"', "--ppd", PPD, "--list-options").status, 0)

    # A file must not get the descriptor of a closed stream: the program's output would be written into it.
    def test_fails_when_its_output_cannot_be_written(self):
        for streams in "> /dev/full", ">&-", "<&- >&-":
            done = shell('"$@" ' + streams, "--batch", "--overwrite", "--output", self.out, PHOTO)
            self.assert_refused(done, 1, "Standard output")
            self.assertTrue((self.out / "sample.pdf").read_bytes().startswith(b"%PDF-"))
        self.assertEqual(shell('"$@" --list-options > /dev/full').status, 1)
        unread = shell('{ sleep 0.1; "$@" --help; echo $? >&2; } | true').err
        self.assertIn("Standard output", unread)
        self.assertTrue(unread.endswith("\n1\n"), unread)


unittest.main(argv=sys.argv[:1])
