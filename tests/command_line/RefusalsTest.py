# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""What corvel-print refuses: with the right status, one line that names the thing, and nothing printed."""

import os
import pathlib
import shutil
import struct
import sys
import unittest

from program import PHOTO, PPD, ProgramTest, run, shell

MODES = "constraint", "settings"
USAGE = (
    (["--bacth", PHOTO], "bacth"),
    ([PHOTO, "--printer"], "printer"),
    (["--batch", "--ppd=", PHOTO], "--ppd"),
    (["--batch=yes", PHOTO], "batch"),
    (["--batch", "--scaling=big", PHOTO], "fit, fill or actual"),
    (["--batch", "--scaling=fill", "--crop=50", PHOTO], '"50"'),
    (["--batch", "--scaling=fill", "--crop=50,101", PHOTO], "101"),
    (["--batch", "--scaling=fill", "--crop=nan,5", PHOTO], "nan"),
    (["--batch", "--crop=50,50", PHOTO], "--scaling"),
    (["--batch", "--size=huge", PHOTO], '"huge"'),
    (["--batch", "--scale=0", PHOTO], '"0"'),
    (["--batch", "--border=-1mm", PHOTO], '"-1mm"'),
    (["--batch", "--layout=0x2", PHOTO], '"0x2"'),
    (["--batch", "--caption=all", PHOTO], '"all"'),
    (["--batch", "--layout=pages:3", PHOTO], '"pages:3"'),
    *((["--batch", f"--pages={pages}", PHOTO], f'"{pages}"') for pages in ("0", "3-1", "1,,2", "a", "-")),
    (["--batch", "--pages=", PHOTO], "--pages"),
    (["--batch", "--page-set=some", PHOTO], "all, odd or even"),
    (["--batch", "--reverse", "list.json"], "--reverse"),
    (["--batch", "-o", "Red", PHOTO], "KEY=CHOICE"),
    (["--batch", "-o", "=12", PHOTO], "KEY=CHOICE"),
    (["--batch", "--mode", "strict", PHOTO], "strict"),
    (["--batch", "--mode", "\x1b[31m\nx", PHOTO], "[31m x"),
    (["--batch", "-o", "Red=12"], "file"),
    (["--batch", "--ppd", "a.ppd", "--printer", "office", PHOTO], "office"),
    (["--batch", "--list-printers", PHOTO], "--list-printers"),
    (["--batch", "--screenshot", "d", PHOTO], "--screenshot"),
    (["--list-options", "--list-printers"], "--list-options"),
    (["--json", PHOTO], "--json"),
    (["--dry-run"], "--dry-run"),
    (["--dry-run", "--list-printers", PHOTO], "--dry-run"),
    (["--wait", "5", PHOTO], "--wait"),
    (["--batch", "--wait", "-1", PHOTO], '"-1"'),
    (["--batch", "--wait", "1h", PHOTO], '"1h"'),
    (["--batch", "-n", "0", PHOTO], "1 to 999"),
    (["--batch", "--copies=two", PHOTO], '"two"'),
    (["--batch", "file://server/a.jpg"], "file://server/a.jpg"),
    (["--batch", "file:///tmp/a.jpg%00b"], "a.jpg%00b"),
    (["--overwrite", PHOTO], "--overwrite"),
    (["--no-check", PHOTO], "--no-check"),
    (["--one-pdf", "all", PHOTO], "--one-pdf"),
    (["--server", ":631", PHOTO], '":631"'),
    (["--server", "host:99999", PHOTO], "host:99999"),
    (["--server", "host/ipp print", PHOTO], "HOST:PORT"),
    (["--preview", "a.jpg", PHOTO], '"a.jpg"'),
    (["--preview", "prints/.png", PHOTO], '"prints/.png"'),
    (["--preview", "a.png"], "--preview"),
    (["--preview", "a.png", "--json", PHOTO], "--json"),
    *((["--preview", "a.png", *other, PHOTO], "exclude") for other in (
        ["--batch"], ["--list-options"], ["--screenshot", "d"], ["--dry-run"], ["--summary"])),
    *((["--watch", "d", *other], word) for other, word in (
        ([PHOTO], PHOTO), (["--batch"], "exclude"), (["--dry-run"], "exclude"), (["--summary"], "exclude"),
        (["--json"], "--json"), (["--wait", "5"], "--wait"), (["--overwrite"], "--overwrite"))),
    (["--printed", "d", PHOTO], "--watch"),
    (["--batch", "--existing", PHOTO], "--watch"),
    (["--batch", "--printer", "queue/one", "--preset", "two", PHOTO], '"two"'),
    (["--batch", "--printer", "ipp://h/ipp/print", "--preset", "one", PHOTO], "ipp://h/ipp/print"),
    (["--preset", "one", PHOTO], "--printer"),
    (["--json", "--summary", "--batch", PHOTO], "--json"))
CHOICES = (  # options, words, modes
    (["Red=99"], ['"Red"', '"99"', "-25 to 25"], MODES),
    (["Nope=1"], ['"Nope"'], MODES),
    (["red=1"], ['"red"'], MODES),
    (["Overcoat=Silk"], ["Overcoat", "Silk", "Glossy, Matte"], MODES),
    (["Overcoat=Matte"], ["Overcoat", "Matte", "Quality"], MODES),
    (["Overcoat=Matte", "Quality=Fine"], ["Overcoat", "Quality"], MODES[:1]),  # resolved too late
    (["Red=-"], ["Red", "-25 to 25"], MODES),
    (["Red="], ["Red", "-25 to 25"], MODES),
    (["Red=12x"], ["Red", "12x"], MODES),
    (["Red=12", "Gamma=26"], ["Gamma"], MODES),
    (["Red=\x1b[31m\n12"], ["Red"], MODES),
    (["R\x1b[31m\ned=12"], ["R"], MODES),
    (["PageRegion=4x6"], ["PageSize"], MODES))
PLUGINS = (  # a command beside a copy of the bundle, and what the line names
    ("sed -i s/org.corvel.printing/org.example/ Contents/Info.json", "org.example.Corvel9031"),
    ("echo '{ \"CFBundle' > Contents/Info.json", "Info.json"),
    ("rm Contents/Info.json", "Info.json"),
    ("rm Contents/Linux/*.so", "module"),
    ("echo x > Contents/Linux/Corvel9031PDE.so", "plug-in"))
ODD = "a\x1b[31m\nb.jpg"


def content(path):
    return pathlib.Path(path).read_bytes()


class RefusalsTest(ProgramTest):
    def refuses(self, run, status, *words):
        self.assert_refused(run, status, *words)
        self.assertFalse(self.out.exists())

    def copied_bundle(self, command):
        bundle = self.folder / "Corvel9031.bundle"
        shutil.rmtree(bundle, ignore_errors=True)
        shutil.copytree(pathlib.Path(os.environ["CORVEL_PDE_PATH"], bundle.name), bundle)
        self.assertEqual(os.system(f"cd {bundle} && {command}"), 0)

    def test_wrong_usage(self):
        for arguments, word in USAGE:
            with self.subTest(arguments):
                self.refuses(run(*arguments, folder=self.folder), 2, word, "corvel-print --help")
                self.assertEqual(list(self.folder.iterdir()), [])

    def test_watched_folder(self):
        for name in "new", "done":
            (self.folder / name).mkdir()
        (self.folder / "link").symlink_to("new")
        (self.folder / "file").touch()
        before = sorted(self.folder.rglob("*"))
        for arguments, *words in (
                (["absent"], '"', "absent", "--watch", "does not exist"), (["file"], "file", "not a folder"),
                (["new", "--printed", "absent"], "absent", "--printed"), (["new", "--printed", "link"], "same folder"),
                (["new", "--output", "link"], "watched folder"), (["new", "-o", "Red=99"], "Red")):
            with self.subTest(arguments):
                self.refuses(run("--printer", "built-in", "--watch", *arguments, folder=self.folder), 1, *words)
                self.assertEqual(sorted(self.folder.rglob("*")), before)

    def test_choice(self):
        for options, words, modes in CHOICES:
            for mode in modes:
                with self.subTest(options, mode=mode):
                    arguments = [argument for option in options for argument in ("-o", option)]
                    self.refuses(self.print("--mode", mode, PHOTO, *arguments), 1, *words)

    # When one photo is refused, the one before it is not printed either.
    def test_photo(self):
        for name, bad in (("gone.jpg", None), (ODD, None), ("bad.jpg", b""),
                          ("bad.jpg", content(PHOTO)[:os.path.getsize(PHOTO) // 2]), ("bad.jpg", b"This is no photo.\n"),
                          ("bad.jpg", bytes(100000)), (ODD, b"This is no photo.\n")):
            if bad is not None:
                self.stored(name, bad)
            self.refuses(self.print(PHOTO, self.folder / name), 1, name[-5:])

    # libtiff writes to standard error by itself. Where nothing reads TIFF, that is the one line.
    def test_library_that_complains(self):
        # 64 x 64 grey pixels, compressed with LZW into bytes that are not codes.
        entries = ((256, 64), (257, 64), (258, 8), (259, 5), (262, 1), (273, 122), (277, 1), (278, 64), (279, 500))
        tiff = (b"II*\0\x08\0\0\0\x09\0" + b"".join(struct.pack("<HHIHH", tag, 3, 1, value, 0) for tag, value in entries)
                + bytes(4) + b"\x77" * 500)
        self.refuses(self.print(self.stored("bad.tiff", tiff)), 1, "bad.tiff")

    def test_ppd(self):
        bad = self.folder / "bad.ppd"
        for written in None, bytes.fromhex("7f454c46020101000000") * 500:
            if written is not None:
                bad.write_bytes(written)
            self.refuses(self.print("--ppd", bad, PHOTO), 1, bad.name)
            self.refuses(run("--list-options", "--ppd", bad), 1, bad.name)

    # A plug-in that cannot be loaded is a failure: its panels could not check the options.
    def test_plugin(self):
        for command, word in PLUGINS:
            with self.subTest(command):
                self.copied_bundle(command)
                place = {"CORVEL_PDE_PATH": str(self.folder)}
                self.refuses(self.print(PHOTO, **place), 1, "Corvel9031.bundle", word)
                self.refuses(run("--list-options", **place), 1, "Corvel9031.bundle", word)

    def test_plugin_that_fails(self):
        surroundings = {"CORVEL_PDE_PATH": os.environ["CORVEL_TEST_PDE_DIR"]}
        postcard = "--ppd", os.environ["CORVEL_POSTCARD_PPD"]
        for fault, *words in (("init:std", "Postcard.bundle", "no paper feed"),
                              ("restore:platform", '"Border"', "missing", "no paper feed"),
                              ("choice:int", '"Border"', "missing", "without a description"),
                              ("save:std", '"Border"', "missing", "no paper feed"),
                              ("save:false", '"Border"', "missing", "disk is full")):
            for mode in MODES:
                self.refuses(self.print("--mode", mode, *postcard, "-o", "Border=White", PHOTO, **surroundings,
                                        CORVEL_TEST_FAULT=fault), 1, *words)
        shown = run("--screenshot", self.out, *postcard, PHOTO, **surroundings, CORVEL_TEST_FAULT="event:std",
                    QT_QPA_PLATFORM="offscreen")
        self.assertEqual(shown.status, 0)
        self.assertIn("border.png", self.names())

    # A PPD may also name extensions of other systems' dialogs; these are not reported as missing.
    def test_panels_that_are_not_installed_are_no_loss(self):
        own = self.print("-o", "Red=12", PHOTO, CORVEL_PDE_PATH=str(self.folder))
        self.assertEqual(own.status, 0)
        self.assert_refused(own._replace(out=""), 0, "Corvel9031.bundle", "not installed")
        self.assertEqual(self.ticket()["Red"], "12")
        extension, bundle = b"*APDialogExtension", b"Corvel9031.bundle"
        foreign = b"/Library/Printers/Maker/PDEs/Photo.plugin"
        both = self.stored("both.ppd", content(PPD).replace(
            extension, extension + b": \"" + foreign + b"\"\n" + extension))
        for ppd, panel_is_named in (both, True), (self.stored("other.ppd", content(PPD).replace(bundle, foreign)), False):
            listed = run("--list-options", "--ppd", ppd)
            self.assert_quiet(listed)
            self.assertEqual("Color Adjustments" in listed.out, panel_is_named)

    # A run without a window does not load the form.
    def test_missing_form_prints_all_the_same(self):
        self.copied_bundle("rm Contents/Resources/*.ui")
        self.assert_quiet(self.print("-o", "Red=12", PHOTO, CORVEL_PDE_PATH=str(self.folder)))
        self.assertEqual(self.ticket()["Red"], "12")

    # No folder appears under a converted name.
    def test_name_that_is_not_utf8(self):
        photo = os.fsdecode(bytes(self.folder) + b"/caf\xe9")
        shutil.copy(PHOTO, photo)
        for arguments in [photo], [self.folder.as_uri() + "/caf%E9"], ["--ppd", photo, PHOTO], ["--output", photo, PHOTO]:
            self.refuses(run("--batch", *arguments), 1, "caf\ufffd", "UTF-8", "Rename it.")
        self.assertEqual(os.listdir(bytes(self.folder)), [b"caf\xe9"])

    # The program reports it; it does not crash or repeat Qt's advice to install it again.
    def test_no_display(self):
        without = "env -u QT_QPA_PLATFORM -u DISPLAY -u WAYLAND_DISPLAY -u XDG_RUNTIME_DIR "
        for variables in "", "DISPLAY= ", "WAYLAND_DISPLAY=wayland-9 ":
            self.refuses(shell(without + variables + '"$@"', PHOTO), 1, "no display", "--batch")
        self.refuses(shell(without + 'LC_ALL= DISPLAY=:987 LANG=C.UTF-8 LANGUAGE=de "$@"', PHOTO), 1,
                     "\u201e:987\u201c", "--batch")
        self.refuses(run(PHOTO, QT_QPA_PLATFORM="nonesuch"), 1, "cannot start", '"nonesuch"')
        self.refuses(run("--ppd", "/nonexistent.ppd", QT_QPA_PLATFORM="offscreen"), 1, "/nonexistent.ppd")
        # A window that nobody can see would wait forever.
        unseen = shell(f"cd '{self.folder}' && mkfifo err && "
                       '{ QT_QPA_PLATFORM=offscreen "$@" 2>err & head -n 1 err; kill $!; }', PHOTO).out
        self.assertIn("QT_QPA_PLATFORM", unseen)
        self.assertIn("--batch", unseen)

    def test_place(self):
        for arguments, word in ((["--output", PHOTO], "sample.jpg"), (["--output", "/proc/prints"], "/proc/prints"),
                                (["--", "-platform", "x"], 'no photo "-platform"'),  # named like an option of Qt
                                (["--printer", "no\x1bwhere"], '"nowhere"')):
            self.refuses(run("--batch", PHOTO, *arguments, folder=self.folder), 1, word)

    # SIGXFSZ would end the program. The smallest limit also stops the temporary PPD that libcups reads.
    def test_file_that_grows_too_large(self):
        for limit, words in ((100, ("sample.pdf", "ulimit -f")), (0, ())):
            self.refuses(shell(f'ulimit -f {limit} && exec "$@"', "--batch", "--output", self.out, PHOTO), 1, *words)

    def test_picture(self):
        for arguments, word in ((["gone.jpg"], "gone.jpg"), (["-o", "Red=99"], '"Red"'), (["--ppd", PHOTO], "sample.jpg"),
                                (["--printer", "nowhere"], '"nowhere"'),
                                (["--screenshot", "/proc/pictures"], "/proc/pictures")):
            self.refuses(run("--screenshot", self.out, *arguments), 1, word)


unittest.main(argv=sys.argv[:1])
