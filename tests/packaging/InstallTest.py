# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""InstallTest.py CMAKE COMPILER BUILD BINDIR LIBDIR LIBEXECDIR DATADIR PHOTO IS_SANITIZED: the program as it is
installed, away from where it was built."""

import json
import os
import pathlib
import re
import sys
import tempfile
import unittest

from commands import SOURCE, CommandTest, content, run

CMAKE, COMPILER, BUILD, BINDIR, LIBDIR, LIBEXECDIR, DATADIR, PHOTO, IS_SANITIZED = sys.argv[1:]
PLACE = tempfile.TemporaryDirectory()
FOLDER = pathlib.Path(PLACE.name)
PREFIX = FOLDER / "in stalled"
MANIFEST = FOLDER / "manifest.txt"


def corvel_print(*arguments, prefix=PREFIX, **environment):
    variables = {"CORVEL_PDE_PATH": None, "QT_QPA_PLATFORM": None, "LC_ALL": None} | environment
    return run(prefix / BINDIR / "corvel-print", *arguments, **variables)


def files():
    return [path for path in PREFIX.rglob("*") if path.is_file()]


class InstallTest(CommandTest):  # in the order of the names
    # The test removes its own list of installed files: the list of the user's installation from this build stays.
    @classmethod
    def setUpClass(cls):
        written = pathlib.Path(BUILD, "install_manifest.txt")
        before = written.read_bytes() if written.exists() else None
        status, output = run(CMAKE, "--install", BUILD, "--prefix", PREFIX, "--strip")
        assert status == 0, output
        MANIFEST.write_bytes(written.read_bytes())
        written.write_bytes(before) if before else written.unlink()

    @unittest.skipIf(int(IS_SANITIZED), "The sanitizers name the places in the sources that they watch.")
    def test_1_holds_no_path_of_the_build(self):
        self.assertGreater(len(files()), 30)
        for path in files():
            for build in BUILD, SOURCE:
                self.assertFalse(build.encode() in content(path), path)
        kit = self.output_of("readelf", "-d", PREFIX / LIBDIR / "libpdekit.so")
        self.assertIn("[libpdekit.so.0]", kit)
        self.assertNotIn("RUNPATH", kit)

    # The plug-in, its forms and strings table, its Info.json, the picture of its icon.
    def test_2_finds_its_parts(self):
        status, german = corvel_print("--list-options", "--printer", "built-in", LANG="de_DE.UTF-8")
        self.assertEqual(status, 0, german)
        self.assert_all_in(("Farbanpassung", "Schärfe", "Druckqualität und Oberfläche"), german)
        bundle = PREFIX / LIBDIR / "corvel-print/PDEs/Corvel9031.bundle/Contents"
        version = json.loads(content(bundle / "Info.json"))["CFBundleVersion"]
        self.assertEqual(corvel_print("--version"), (0, f"corvel-print {version}\n"))
        for page in ("index.html", "index_de.html", "index_fr.html", "index_es.html", "index_ja.html", "style.css",
                     "images/matte_de.png", "images/matte_ja.png"):
            self.assertTrue((bundle / "Resources/Corvel9031Help" / page).exists(), page)
        for file in ("applications/org.corvel.print.desktop", "metainfo/org.corvel.print.metainfo.xml",
                     "icons/hicolor/scalable/apps/corvel-print.svg", "icons/hicolor/48x48/apps/corvel-print.png",
                     "man/man1/corvel-print.1.gz", "bash-completion/completions/corvel-print",
                     "ppd/corvel-print/Corvel9045.ppd"):
            self.assertTrue((PREFIX / DATADIR / file).exists(), file)
        self.assertTrue((PREFIX / "lib/systemd/user/corvel-print-watch@.service").exists())
        self.assertTrue((PREFIX / DATADIR / "xdg-desktop-portal/portals/corvel.portal").exists())
        started = [re.search("^Exec(?:Start)?=(.*)$", (PREFIX / file).read_text(), re.MULTILINE)[1]
                   for file in (f"{DATADIR}/dbus-1/services/org.freedesktop.impl.portal.desktop.corvel.service",
                                "lib/systemd/user/corvel-print-portal.service")]
        self.assertEqual(started, [f'"{PREFIX}/{LIBEXECDIR}/corvel-print-portal"'] * 2)
        self.assertEqual(run(PREFIX / LIBEXECDIR / "corvel-print-portal", "--version"),
                         (0, f"corvel-print-portal {version}\n"))
        for program in "corvel-printer-list", "corvel-screen-profile":
            self.assertTrue((PREFIX / LIBDIR / "corvel-print" / program).exists(), program)
        # Authors of plug-ins get the headers that they need; the others may change.
        headers = {path.name for path in PREFIX.rglob("pdekit/*.h")}
        self.assertIn("FormLoader.h", headers)
        self.assertFalse(headers & {"ChildProcess.h", "FileDescriptor.h", "InputStream.h", "SignalLog.h", "StringsTable.h"})

    def test_3_works_wherever_it_is_moved_to(self):
        moved = PREFIX.rename(FOLDER / "moved")
        self.addCleanup(moved.rename, PREFIX)
        # A PPD of the user's needs the program that tries it out.
        status, output = corvel_print("--batch", "--ppd", moved / DATADIR / "ppd/corvel-print/Corvel9045.ppd", "-o",
                                      "Red=7", "--output", FOLDER, PHOTO, prefix=moved)
        self.assertEqual(status, 0, output)
        self.assertTrue(content(FOLDER / "sample.pdf").startswith(b"%PDF-"))

    # The example is configured, built and loaded as its reader would do it.
    def test_4_takes_a_plug_in_built_against_it(self):
        source, build = f"{SOURCE}/examples/postcard", FOLDER / "postcard"
        self.output_of(CMAKE, "-G", "Ninja", "-S", source, "-B", build, f"-DCMAKE_PREFIX_PATH={PREFIX}",
                       "-DCMAKE_UNITY_BUILD=ON", "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror",
                       f"-DCMAKE_CXX_COMPILER={COMPILER}")
        self.output_of(CMAKE, "--build", build)
        self.output_of(CMAKE, "--install", build)
        printer = "--ppd", f"{source}/Postcard.ppd"
        self.assertIn("Border      Border      None      Border and Tone",
                      corvel_print(*printer, "--list-options")[1])
        for mode in "constraint", "settings":
            batch = (*printer, "--mode", mode, "-o", "Border=Deckle", "-o", "Tone=Sepia", "--batch", "--output", FOLDER,
                     PHOTO, "--summary")
            status, output = corvel_print(*batch)
            self.assertEqual(status, 0, output)
            self.assertIn("\nBorder: Deckle edge\nTone: Sepia\n", output)
            self.assertEqual(corvel_print(*batch, "-o", "PageSize=Square")[0], 1)

    # Neither the installed files nor the built example.
    def test_6_loads_no_strangers_library(self):
        self.output_of(sys.executable, f"{SOURCE}/tests/packaging/libraryPaths.py", PREFIX, FOLDER / "postcard")

    # Follows docs/plugins.md to the letter.
    def test_5_guide_can_be_followed(self):
        folder = FOLDER / "guide"
        folder.mkdir()
        self.output_of(sys.executable, f"{SOURCE}/tests/packaging/guideFiles.py", f"{SOURCE}/docs/plugins.md", folder)
        shown = self.output_of("/bin/sh", "-c", f"cd '{folder}' && . ./commands.sh", CMAKE_PREFIX_PATH=str(PREFIX),
                               PATH=f"{PREFIX / BINDIR}:{os.environ['PATH']}", CMAKE_GENERATOR="Ninja", CXX=COMPILER,
                               CXXFLAGS="-Wall -Wextra -Werror", QT_QPA_PLATFORM=None, CORVEL_PDE_PATH=None)
        self.assert_all_in(("Handle", "Right"), shown)
        self.assertEqual(shown.count("Handle: On the left\nGlossy: Yes\n"), 2)
        self.assertEqual(shown.count("  Mug  "), 4)

    # Files and folders of others stay: among them the bundles of the example and the guide.
    def test_7_uninstalls(self):
        self.output_of(CMAKE, f"-DMANIFEST={MANIFEST}", "-P", f"{SOURCE}/cmake/uninstall.cmake")
        self.assertTrue(files())
        for path in files():
            self.assertRegex(str(path), "/corvel-print/PDEs/(Postcard|Mug).bundle/")
        for path in map(str, PREFIX.rglob("*")):
            self.assertNotRegex(path, "pdekit|Corvel9031|/ppd/corvel-print$")
        self.assertFalse(os.path.exists(MANIFEST))


unittest.main(argv=sys.argv[:1])
