# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""--use-for-all-programs and --stop-using-for-all-programs: the user's portals.conf, in a home folder made for it."""

import itertools
import stat
import sys
import unittest

from program import ProgramTest, run

KEY = b"org.freedesktop.impl.portal.Print"
ENTRY = KEY + b"=corvel"
RESTART = "systemctl --user restart xdg-desktop-portal\n"


class PortalSwitchTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.places = itertools.count()
        self.start_afresh()

    def start_afresh(self):
        place = self.folder / str(next(self.places))
        self.home, self.share, self.etc = (place / name for name in ("home", "share", "etc"))
        self.own = self.home / "xdg-desktop-portal"
        self.service = self.put(self.share / "dbus-1/services/org.freedesktop.portal.Desktop.service",
                                b"[D-BUS Service]\nName=org.freedesktop.portal.Desktop\nExec=%s/front-end\n" %
                                bytes(self.folder))
        self.portal = self.put(self.share / "xdg-desktop-portal/portals/corvel.portal", b"")
        self.front_end("echo xdg-desktop-portal 1.18.4")

    def put(self, path, content):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        return path

    def front_end(self, command):
        self.put(self.folder / "front-end", f"#!/bin/sh\n{command}\n".encode()).chmod(0o755)

    def switch(self, verb, desktops="Hill:Valley", *more):
        return run(f"--{verb}-for-all-programs", *more, XDG_CONFIG_HOME=f"{self.home}", XDG_CONFIG_DIRS=f"{self.etc}",
                   XDG_DATA_HOME=f"{self.folder}/none", XDG_DATA_DIRS=f"{self.share}", XDG_CURRENT_DESKTOP=desktops)

    def assert_done(self, run, *words):
        self.assert_quiet(run)
        for word in words:
            self.assertIn(str(word), run.out)

    def own_files(self):
        return {path.name: path.read_bytes() for path in self.own.glob("*")}

    # What is in the file before, with this dialog, and without it again; None: as before.
    def test_changes_one_key(self):
        others = b"# \xe4\xff\n[other]\n; odd = 1\n" + KEY + b"=kept\n"
        for name, before, used, stopped in (
                ("first in its group", b"[preferred]\ndefault=gtk\n", b"[preferred]\n%s\ndefault=gtk\n", None),
                ("comments, other groups", others + b"[preferred]\n\n#end", others + b"[preferred]\n%s\n\n#end", None),
                ("CRLF", b"[preferred]\r\ndefault=gtk\r\n", b"[preferred]\r\n%s\r\ndefault=gtk\r\n", None),
                ("no line end", b"#\n[preferred]", b"#\n[preferred]\n%s", None),
                ("no line end, CRLF", b"#\r\n[preferred]", b"#\r\n[preferred]\r\n%s", None),
                ("blanks", b" [preferred] \n\n", b" [preferred] \n%s\n\n", None),
                ("no such group", b"[other]\na=b", b"[other]\na=b\n[preferred]\n%s\n", b"[other]\na=b\n[preferred]\n"),
                ("another portal", b"[preferred]\n%s=gtk\n" % KEY, b"[preferred]\n%s;gtk\n", None),
                ("none", b"[preferred]\n %s = none" % KEY, b"[preferred]\n %s = corvel;none" % KEY, None),
                ("not the first", b"[preferred]\n%s=gtk;corvel\n" % KEY, b"[preferred]\n%s;gtk;corvel\n",
                 b"[preferred]\n%s=gtk\n" % KEY),
                ("said twice", b"[preferred]\n%s\n[preferred]\n%s=a;b\n" % (ENTRY, KEY),
                 b"[preferred]\n%s\n[preferred]\n%s;a;b\n",
                 b"[preferred]\n[preferred]\n%s=a;b\n" % KEY)):
            with self.subTest(name):
                path = self.put(self.own / "portals.conf", before)
                with_us = used.replace(b"%s", ENTRY)
                self.assert_done(self.switch("use"), path, ENTRY.decode(), RESTART)
                self.assertEqual(path.read_bytes(), with_us)
                self.assert_done(self.switch("use"), f"Already so: {path}")
                self.assert_done(self.switch("stop-using"), path, RESTART)
                self.assertEqual(path.read_bytes(), before if stopped is None else stopped)
                self.assert_done(self.switch("stop-using"), f"Already so: {path}")
                self.assertEqual(list(self.own_files()), ["portals.conf"])

    # The files that are there, and the user's that is made and removed again; it changes no other desktop.
    def test_copies_the_file_in_force(self):
        for name, there, source, made in (
                ("none", (), None, "hill-portals.conf"),
                ("for every desktop", ("etc/portals.conf",), 0, "hill-portals.conf"),
                ("for one desktop", ("etc/portals.conf", "etc/valley-portals.conf"), 1, "valley-portals.conf"),
                ("in an earlier folder", ("share/hill-portals.conf", "etc/portals.conf"), 1, "hill-portals.conf"),
                ("not one that is ignored", ("etc/hill-portals.conf", "share/portals.conf"), 1, "hill-portals.conf")):
            with self.subTest(name):
                texts = [b"[preferred]\ndefault=%d\n" % number for number in range(len(there))]
                if "ignored" in name:
                    texts[0] = b"default=gtk\n" + texts[0]
                self.start_afresh()
                paths = [self.put(self.etc.parent / path.replace("/", "/xdg-desktop-portal/"), text)
                         for path, text in zip(there, texts)]
                text = b"[preferred]\n" if source is None else texts[source]
                used = text.replace(b"[preferred]\n", b"[preferred]\n%s\n" % ENTRY)
                self.assert_done(self.switch("use"), self.own / made, RESTART, *paths[source:][:1] if paths else ())
                self.assertEqual(self.own_files(), {made: used})
                self.assert_done(self.switch("stop-using"), f"Removed {self.own / made}", RESTART)
                self.assertEqual(self.own_files(), {})
                # What the user has changed since is kept.
                self.switch("use")
                self.put(self.own / made, used + b"#\n")
                self.assert_done(self.switch("stop-using"), self.own / made)
                self.assertEqual(self.own_files(), {made: text + b"#\n"})
                self.assertEqual([path.read_bytes() for path in paths], texts)

    def test_keeps_links_and_permissions(self):
        target = self.put(self.folder / "dotfiles", b"[preferred]\n")
        target.chmod(0o640)
        self.own.mkdir(parents=True)
        (self.own / "portals.conf").symlink_to(target)
        self.assert_done(self.switch("use"))
        self.assertEqual(target.read_bytes(), b"[preferred]\n%s\n" % ENTRY)
        self.assertEqual(stat.S_IMODE(target.stat().st_mode), 0o640)
        self.assertTrue((self.own / "portals.conf").is_symlink())

    def test_refuses(self):
        package = "corvel-print-portal"

        def file_is_wrong():
            self.put(self.own / "portals.conf", b"[preferred]\na=b\nodd\n")

        def folder_is_none():
            self.put(self.home, b"")

        def system_has_it():
            self.put(self.etc / "xdg-desktop-portal/portals.conf", b"[preferred]\n%s\n" % ENTRY)
        for name, prepare, verb, desktops, more, status, words in (
                ("old", lambda: self.front_end("echo xdg-desktop-portal 1.16"), "use", "a", (), 1, ("1.16", package)),
                ("no portal", lambda: self.portal.unlink(), "use", "a", (), 1, (package,)),
                ("no front end", lambda: self.service.unlink(), "use", "a", (), 1, ("the package xdg-desktop-portal",)),
                ("no desktop", None, "stop-using", ":../a:", (), 1, ("XDG_CURRENT_DESKTOP",)),
                ("wrong file", file_is_wrong, "use", "a", (), 1, ("portals.conf", "line 3")),
                ("no folder", folder_is_none, "use", "a", (), 1, ("a-portals.conf", "folder")),
                ("the system's", system_has_it, "stop-using", "a", (), 1, ("etc/xdg-desktop-portal/portals.conf",)),
                ("with a photo", None, "use", "a", ("a.jpg",), 2, ("--use-for-all-programs",)),
                ("with an option", None, "stop-using", "a", ("--json",), 2, ("--stop-using",)),
                ("both", None, "use", "a", ("--stop-using-for-all-programs",), 2, ("alone",))):
            with self.subTest(name):
                self.start_afresh()
                if prepare:
                    prepare()
                before = self.own_files()
                self.assert_refused(self.switch(verb, desktops, *more), status, *words)
                self.assertEqual(self.own_files(), before)

    # It is the manual page that comes with the versions that read the file.
    def test_says_when_the_version_is_unknown(self):
        self.front_end("exit 1")
        self.assert_done(self.switch("use"), "cannot be found out", RESTART)
        self.put(self.share / "man/man5/portals.conf.5.gz", b"")
        run = self.switch("stop-using")
        self.assert_done(run, RESTART)
        self.assertNotIn("1.17", run.out)


unittest.main(argv=sys.argv[:1])
