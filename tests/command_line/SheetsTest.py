# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""Print sizes, sheets with several photos, print lists and the standard input, with the built-in printer."""

import json
import subprocess
import sys
import unittest

from program import PHOTO, PROGRAM, ProgramTest, run

# A list with nothing but one key of a photo; "photos" and others stand for keys of the list.
BAD_LISTS = (
    ("{", "is not a print list"),
    ('{"format": "other", "version": 1}', "is not a print list"),
    ('{"format": "corvel-print-list", "version": 2, "photos": []}', "later version"),
    ('{"format": "corvel-print-list", "photos": []}', '"version" cannot be null'),
    ({"photos": []}, '"photos" cannot be []'),
    ({"photos": ["a.jpg"]}, '"photos" cannot be "a.jpg"'),
    ({"photos": "a.jpg"}, '"photos" cannot be "a.jpg"'),
    ({"Layout": "2x2"}, '"Layout" cannot be "2x2"'),
    ({"layout": "9"}, '"layout" cannot be "9"'),
    ({"layout": 9}, '"layout" cannot be 9'),
    ({"copies": 0}, '"copies" cannot be 0'),
    ({"copies": 1.5}, '"copies" cannot be 1.5'),
    ({"turns": 4}, '"turns"'),
    ({"crop": [50]}, '"crop" cannot be [50]'),
    ({"page": 0}, '"page" cannot be 0'),
    ({"pages": "3-1"}, '"pages" cannot be "3-1"'),
    ({"pageSet": "some"}, '"pageSet" cannot be "some"'),
    ({"reverse": "yes"}, '"reverse" cannot be "yes"'),
    ({"size": "0x0cm"}, '"size"'),
    ({"size": "1" * 1000000}, '"size"'),
    ({"border": "1" * 1000000}, '"border"'),
    ({"scale": -1}, '"scale"'),
    ({"border": "thick"}, '"border"'),
    ({"file": ""}, '"file"'),
    ({"color": "red"}, '"color"'))


def print_list(values):
    if isinstance(values, str):
        return values
    top = {key: values[key] for key in ("photos", "layout", "Layout", "pages", "pageSet", "reverse") if key in values}
    photo = {"file": PHOTO} | {key: values[key] for key in values if key not in top}
    return json.dumps({"format": "corvel-print-list", "version": 1, "photos": [photo]} | top)


class SheetsTest(ProgramTest):
    def plan(self, *arguments):
        done = run("--printer", "built-in", "--dry-run", "--json", *arguments)
        self.assertEqual((done.status, done.err), (0, ""))
        return json.loads(done.out)

    def places(self, sheet):
        return [(round(photo["left"]), round(photo["top"]), round(photo["width"]), round(photo["height"]))
                for photo in sheet["photos"]]

    def test_lays_photos_out(self):
        for arguments, places in (
                (["--size", "9x13cm", "--scaling", "fill"], [(6, 11, 90, 130)]),
                (["--size", "passport", "--scaling", "fill"], [(33, 54, 35, 45)]),
                (["--layout", "fit", "--size", "passport"], [(4 + 48 * x, 2 + 38 * y, 45, 35)
                                                             for y in range(4) for x in range(2)]),
                (["--layout", "1x2,gap=0mm", "--scaling", "fill"], [(0, 0, 51, 152)]),
                (["--layout", "strips:2,gap=5mm", "--scaling", "fill"], [(5, 5, 41, 69), (56, 5, 41, 69)]),
                (["--size", "5x5cm", "--border", "5mm"], [(26, 51, 50, 50)])):
            with self.subTest(arguments):
                sheet, = self.plan(*arguments, PHOTO)
                self.assertEqual(self.places(sheet), places)
        sheets = self.plan("--layout", "2x2", *[PHOTO] * 5)
        self.assertEqual([(sheet["sheet"], sheet["sheets"], len(sheet["photos"])) for sheet in sheets],
                         [(1, 2, 4), (2, 2, 1)])
        self.assertIn("Sheet: 2 of 2\n", run("--printer", "built-in", "--dry-run", "--layout", "1x1", PHOTO, PHOTO).out)

    def test_prints_sheets_with_captions(self):
        named = self.stored("ein Bild 写真.jpg", open(PHOTO, "rb").read())
        done = self.print("--printer", "built-in", "--layout", "contact:2x2", "--caption", "both", "--summary", named,
                          PHOTO)
        self.assertEqual((done.status, done.err), (0, ""))
        self.assertIn("Layout: Contact sheet, 2 rows, 2 columns\n", done.out)
        self.assertIn("Printed ein Bild 写真.jpg and 1 more: ", done.out)
        ticket = json.loads((self.out / "ein Bild 写真.ticket.json").read_text())
        self.assertEqual(ticket["photos"], [str(named), PHOTO])
        # The letters are outlines: the content has far more of them than a sheet without captions.
        content = (self.out / "ein Bild 写真.pdf").read_bytes()
        self.assertGreater(content.count(b" c\n"), 200)

    def test_prints_one_pdf(self):
        for name, left in ("all", "all"), ("all.pdf", "all-2"):
            options = "--printer", "built-in", "--layout", "1x2", "--one-pdf", name
            planned = self.plan(*options[2:], "--output", self.out, PHOTO, PHOTO, PHOTO)
            files = [str(self.out / f"{left}.{suffix}") for suffix in ("pdf", "ticket.json")]
            self.assertEqual([sheet["files"] for sheet in planned], [files] * 2)
            done = self.print(*options, PHOTO, PHOTO, PHOTO)
            self.assertEqual((done.status, done.err, done.out.count(f"of {left}.pdf\n")), (0, "", 2))
            self.assertIn(b"/Count 2 ", (self.out / f"{left}.pdf").read_bytes())
        self.assertEqual(self.names(), ["all-2.pdf", "all-2.ticket.json", "all.pdf", "all.ticket.json"])
        for name, words in ("a/b", "slash"), (".pdf", "no name"), ("n" * 300, "too long"):
            self.assert_refused(self.print(*options[:-1], name, PHOTO), 1, words)

    def test_prints_a_list(self):
        self.stored("a.jpg", open(PHOTO, "rb").read())
        saved = self.stored("list.json", json.dumps(
            {"format": "corvel-print-list", "version": 1, "layout": "2x2,gap=0mm",
             "photos": [{"file": "a.jpg", "copies": 2, "scaling": "fill", "crop": [0, 100]},
                        {"file": PHOTO, "size": "passport", "turns": 1, "scale": 50, "border": "1mm,black"}]}).encode())
        (self.folder / "links").mkdir()
        (self.folder / "links/list.json").symlink_to(saved)
        for path in saved, self.folder / "links/list.json":
            sheet, = self.plan(path)
            self.assertEqual([photo["file"] for photo in sheet["photos"]],
                             [str(self.folder / "a.jpg")] * 2 + [PHOTO])
        self.assertEqual(self.places(sheet)[2], (8, 92, 35, 45))
        self.assertEqual(self.print("--printer", "built-in", saved).err, "")
        self.assertEqual(self.names(), ["a.pdf", "a.ticket.json"])

    def test_refuses_bad_lists(self):
        for values, words in BAD_LISTS:
            with self.subTest(values):
                done = self.print("--printer", "built-in", self.stored("list.json", print_list(values).encode()))
                self.assertEqual((done.status, done.out, done.err.count("\n")), (1, "", 1))
                self.assertIn("list.json", done.err)
                self.assertIn(words, done.err)
        for other in (["--size", "9x13cm"], [PHOTO]):
            self.assertEqual(self.print(*other, self.folder / "list.json").status, 2)
        self.stored("list.json", print_list({"page": 1}).encode())
        self.assertIn('sample.jpg" has no page 1', self.print("--printer", "built-in", self.folder / "list.json").err)
        self.stored("list.json", print_list({"file": "gone.jpg"}).encode())
        self.assertIn("gone.jpg", self.print("--printer", "built-in", self.folder / "list.json").err)
        self.assertFalse(self.out.exists())

    def test_refuses_what_does_not_fit(self):
        for arguments, words in (
                (["--size", "20x30cm"], "20 × 30 cm has no room"),
                (["--layout", "3x3", "--size", "passport"], "in its place of"),
                (["--layout", "fit"], "Choose a print size"),
                (["--size", "passport", "--border", "2cm"], "leaves nothing"),
                (["--layout", "20x20,gap=2cm"], "leave no room")):
            for task in (["--batch", "--output", self.out], ["--dry-run"]):
                with self.subTest(arguments + task):
                    done = run("--printer", "built-in", *task, *arguments, PHOTO)
                    self.assertEqual((done.status, done.out, done.err.count("\n")), (1, "", 1))
                    self.assertIn(words, done.err)
        self.assertFalse(self.out.exists())

    def test_reads_the_standard_input(self):
        def piped(content, *arguments):
            command = [PROGRAM, "--batch", "--printer", "built-in", "--output", self.out, *arguments]
            return subprocess.run(command, input=content, capture_output=True, timeout=60)
        content = open(PHOTO, "rb").read()
        self.assertEqual(piped(content, "-").stderr, b"")
        self.assertEqual(self.names(), ["standard-input.pdf", "standard-input.ticket.json"])
        self.assertIn(content, (self.out / "standard-input.pdf").read_bytes())
        for bad, words in ((b"", b"is empty"), (b"no photo", b"standard-input")):
            done = piped(bad, "-")
            self.assertEqual((done.returncode, done.stderr.count(b"\n")), (1, 1))
            self.assertIn(words, done.stderr)
        self.assertEqual(piped(content, "-", "-").returncode, 2)


unittest.main(argv=sys.argv[:1])
