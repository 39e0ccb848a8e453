# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""Thousands of photos, photos that change while others are printed, and folders that cannot hold the prints."""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import unittest

from program import PHOTO, PROGRAM, ProgramTest, finished, run

SMALL = (pathlib.Path(__file__).parents[2] / "fuzzing/seeds/photo/rgb.jpg").read_bytes()
IS_SANITIZED = b"__asan_init" in pathlib.Path(PROGRAM).read_bytes()


def commented(content, size):
    """The JPEG with comments of that many bytes."""
    while size > 0:
        length = min(size, 65535)
        content = content[:2] + b"\xff\xfe" + length.to_bytes(2, "big") + bytes(length - 2) + content[2:]
        size -= length
    return content


class ManyPhotosTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.content = pathlib.Path(PHOTO).read_bytes()

    def in_namespace(self, mount, *arguments):
        """A run whose output folder is a file system of its own, and the names that it leaves there."""
        self.out.mkdir(exist_ok=True)
        script = f'mount -t tmpfs -o {mount} tmpfs "$0" || exit 77; "$@"; status=$?; ls -A "$0" >&2; exit $status'
        done = finished(["unshare", "-r", "-m", "sh", "-c", script, self.out, PROGRAM, "--batch", "--printer",
                         "built-in", "--output", self.out, *arguments])
        if done.status == 77 or "unshare:" in done.err:
            self.skipTest("Nobody may mount a file system here: " + done.err)
        complaints = [line for line in done.err.splitlines() if line.startswith("corvel-print: ")]
        return done.status, complaints, [line for line in done.err.splitlines() if line not in complaints]

    def test_ten_thousand_photos(self):
        # Together 640 MB, which are not to be in memory at the same time.
        first = self.stored("00000.jpg", commented(SMALL, 64000))
        names = [f"{i:05}.jpg" for i in range(10000)]
        for name in names[1:]:
            os.link(first, self.folder / name)
        (self.folder / "list.json").write_text(json.dumps(
            {"format": "corvel-print-list", "version": 1, "layout": "contact:10x8",
             "photos": [{"file": name} for name in names]}))
        for arguments, sheets in (names, 10000), (["--layout", "contact:10x8", *names], 125), (["list.json"], 125):
            with self.subTest(sheets=sheets, count=len(arguments)):
                process = subprocess.Popen(
                    ["sh", "-c", 'ulimit -n 40; exec "$@"', "sh", PROGRAM, "--dry-run", "--printer", "built-in",
                     *arguments], cwd=self.folder, stdout=subprocess.PIPE)
                with process.stdout:
                    self.assertEqual(process.stdout.read().count(b"Sheet: "), sheets)
                _, status, used = os.wait4(process.pid, 0)
                process.returncode = status
                self.assertEqual(status, 0)
                self.assertTrue(IS_SANITIZED or used.ru_maxrss < 250_000, f"{used.ru_maxrss} kB")

    def test_photos_of_one_name(self):
        contents = self.content, commented(self.content, 9)
        photos = []
        for folder, content in zip("ab", contents):
            (self.folder / folder).mkdir()
            photos.append(self.stored(f"{folder}/x.jpg", content))
            os.utime(photos[-1], (0, 0))
        self.assert_quiet(self.print("--printer", "built-in", *photos, "--layout", "1x2")._replace(out=""))
        self.assert_quiet(self.print("--printer", "built-in", *photos)._replace(out=""))
        self.assertEqual(len(self.names()), 6)
        held = {name: [content in (self.out / f"{name}.pdf").read_bytes() for content in contents]
                for name in ("x", "x-2", "x-3")}
        self.assertEqual(held, {"x": [True, True], "x-2": [True, False], "x-3": [False, True]})

    def test_damaged_photo_on_a_sheet(self):
        middle = len(self.content) // 2
        bad = self.stored("bad.jpg", self.content[:middle] + b"\xff\xd0" * 1000 + self.content[middle + 2000:])
        photos = [PHOTO, PHOTO, PHOTO, bad, PHOTO]
        for task in (["--batch", "--output", self.out], ["--dry-run"]):
            done = run("--printer", "built-in", "--layout", "1x2", *task, *photos)
            self.assertEqual((done.status, done.err.count("\n")), (1, 1))
            self.assertRegex(done.err, '"[^"]*bad.jpg" is damaged.* sheet with sample.jpg and 1 more is not printed')
        self.assertEqual(self.names(), ["sample-2.pdf", "sample-2.ticket.json", "sample.pdf", "sample.ticket.json"])

    # The program waits when nobody reads its lines. So it cannot be done before a photo that is still to come changes.
    def test_photo_that_changes_meanwhile(self):
        def replace(photo):
            status = photo.stat()
            other = self.stored("other", commented(SMALL, 9)[:status.st_size])
            os.utime(other, ns=(status.st_atime_ns, status.st_mtime_ns))
            other.rename(photo)

        def become_a_pipe(photo):
            photo.unlink()
            os.mkfifo(photo)
        for change, words in (
                (lambda photo: photo.unlink(), "no photo"),
                (lambda photo: photo.write_bytes(photo.read_bytes() + bytes(9)), "has changed"),
                (lambda photo: photo.write_bytes(photo.read_bytes()[:99]), "has changed"),
                (replace, "has changed"), (become_a_pipe, "not a file")):
            photos = [self.stored(f"{i:02}.jpg", SMALL) for i in range(60)]
            shutil.rmtree(self.folder / "deep", ignore_errors=True)
            self.out = self.folder / "deep" / ("long" * 60)  # 15 lines with such a name fill the pipe
            process = subprocess.Popen([PROGRAM, "--batch", "--printer", "built-in", "--layout", "1x2", "--output",
                                        self.out, *photos], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                       pipesize=4096)
            os.read(process.stdout.fileno(), 1)
            change(photos[-1])
            _, complaint = process.communicate(timeout=60)
            with self.subTest(words):
                self.assertEqual((process.returncode, complaint.count(b"\n")), (1, 1), complaint)
                self.assertIn(words, complaint.decode())
                self.assertIn("59.jpg", complaint.decode())
                self.assertEqual(sorted(self.out.glob("*.pdf")), [self.out / f"{i:02}.pdf" for i in range(0, 58, 2)])
            photos[-1].unlink(missing_ok=True)

    def test_folder_that_cannot_hold_them(self):
        photos = [PHOTO] * 4
        status, complaints, names = self.in_namespace("ro", *photos)
        self.assertEqual((status, len(complaints), names), (1, 1, []))
        self.assertIn("may not write", complaints[0])
        for size, printed in ("600k", 2), ("100k", 0):
            status, complaints, names = self.in_namespace(f"size={size}", *photos)
            self.assertEqual((status, len(complaints), len(names)), (1, 1, 2 * printed))
            self.assertRegex(complaints[0], 'no space for ".*/sample.*pdf"')
            self.assertEqual(complaints[0].count(" sample.jpg"), printed)


unittest.main(argv=sys.argv[:1])
