# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""The files by which desktops, software centres and systemd know the program."""

import configparser
import pathlib
import shutil
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from collections import Counter

from commands import SOURCE, CommandTest

ID = "org.corvel.print"
DESKTOP, METAINFO = (f"{SOURCE}/packaging/{ID}.{suffix}" for suffix in ("desktop", "metainfo.xml"))
LANGUAGES = "de", "fr", "es", "ja"


class DesktopFilesTest(CommandTest):
    def setUp(self):
        self.groups = configparser.RawConfigParser(delimiters="=")
        self.groups.optionxform = str
        self.groups.read(DESKTOP, encoding="utf-8")
        self.metainfo = ElementTree.parse(METAINFO)

    def test_are_valid(self):
        self.assertEqual(self.output_of("desktop-file-validate", DESKTOP), "")
        self.output_of("appstreamcli", "validate", "--no-net", "--pedantic", METAINFO)

    def test_agree_with_each_other(self):
        entry = self.groups["Desktop Entry"]

        def texts(name):
            return [" ".join(element.text.split()) for element in self.metainfo.iter(name)]
        for name, expected in (("id", [ID]), ("launchable", [f"{ID}.desktop"]), ("icon", [entry["Icon"]]),
                               ("mediatype", entry["MimeType"].rstrip(";").split(";")), ("binary", [entry["TryExec"]])):
            self.assertEqual(texts(name), expected)
        self.assertEqual(texts("name")[0], entry["Name"])
        self.assertTrue(entry["Exec"].startswith(entry["TryExec"] + " "))

    def test_speak_every_language(self):
        self.assertEqual(len(self.groups.sections()), 2)  # an action beside the entry itself
        for group in map(self.groups.__getitem__, self.groups.sections()):
            for key in "Name", "GenericName", "Comment", "Keywords":
                for language in LANGUAGES:
                    self.assertEqual(key in group, f"{key}[{language}]" in group, (key, language))
        language = "{http://www.w3.org/XML/1998/namespace}lang"
        counts = Counter((element.tag, element.get(language)) for element in self.metainfo.iter())
        for name in "name", "summary", "p", "li":
            self.assertGreater(counts[name, None], 0)
            for language in LANGUAGES:
                self.assertEqual(counts[name, language], counts[name, None], (name, language))

    # The watching one is started with the folder's path in one piece, whatever characters that has.
    @unittest.skipUnless(shutil.which("systemd-analyze"), "There is no systemd.")
    def test_units_are_valid(self):
        def unit(name):
            return pathlib.Path(SOURCE, "packaging", name).read_text(encoding="utf-8")

        watching = unit("corvel-print-watch@.service")
        self.assertIn("\nExecStart=corvel-print --watch %f ", watching)
        name = self.output_of("systemd-escape", "--path", "--template=corvel-print-watch@.service",
                              "/home/me/My Photos-new").strip()
        # The programs are not installed here.
        for name, text in ((name, watching.replace("ExecStart=corvel-print", "ExecStart=/bin/true")),
                           ("corvel-print-portal.service",
                            unit("corvel-print-portal.service.in").replace("@CORVEL_PORTAL_PROGRAM@", "/bin/true"))):
            with tempfile.TemporaryDirectory() as folder:
                path = pathlib.Path(folder, name)
                path.write_text(text, encoding="utf-8")
                self.assertEqual(self.output_of("systemd-analyze", "--user", "--man=no", "verify", path,
                                                XDG_RUNTIME_DIR=folder), "")

    # The portal's front end finds the program by the name that the session bus starts it for.
    def test_portal_agrees_with_its_service(self):
        portal, service = configparser.RawConfigParser(), configparser.RawConfigParser()
        portal.read(f"{SOURCE}/packaging/corvel.portal")
        name = portal["portal"]["DBusName"]
        service.read(f"{SOURCE}/packaging/{name}.service.in")
        self.assertEqual(service["D-BUS Service"]["Name"], name)
        unit = pathlib.Path(SOURCE, "packaging", service["D-BUS Service"]["SystemdService"] + ".in")
        self.assertIn(f"\nBusName={name}\n", unit.read_text(encoding="utf-8"))


unittest.main()
