# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""What the scripts share that run the real program: TEST.py PROGRAM PHOTO PPD SIBLING_PPD."""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
from typing import NamedTuple

PROGRAM, PHOTO, PPD, SIBLING_PPD = sys.argv[1:]


class Run(NamedTuple):
    status: int
    out: str
    err: str


def finished(command, **how):
    done = subprocess.run(command, capture_output=True, timeout=60, **how)
    return Run(done.returncode, done.stdout.decode(errors="replace"), done.stderr.decode(errors="replace"))


def run(*arguments, folder=None, **environment):
    """With variables that take the place of the test's."""
    surroundings = {k: v for k, v in os.environ.items() if k not in ("QT_QPA_PLATFORM", "LPDEST", "PRINTER")}
    return finished([PROGRAM, *arguments], cwd=folder, env=surroundings | environment)


def pdf(pages, size=(595, 842)):
    """A PDF with the text "page 1." and so on."""
    font = 3 + 2 * pages
    objects = ["<< /Type /Catalog /Pages 2 0 R >>",
               f"<< /Type /Pages /Kids [{' '.join(f'{3 + 2 * i} 0 R' for i in range(pages))}] /Count {pages} >>"]
    for i in range(pages):
        text = f"BT /F 40 Tf 50 300 Td (page {i + 1}.) Tj ET"
        objects += [f"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 {size[0]} {size[1]}] /Contents {4 + 2 * i} 0 R "
                    f"/Resources << /Font << /F {font} 0 R >> >> >>",
                    f"<< /Length {len(text)} >> stream\n{text}\nendstream"]
    objects.append("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>")
    content, places = b"%PDF-1.4\n", []
    for number, text in enumerate(objects, 1):
        places.append(len(content))
        content += f"{number} 0 obj {text} endobj\n".encode()
    table = "".join(f"{place:010} 00000 n \n" for place in places)
    return content + (f"xref\n0 {font + 1}\n0000000000 65535 f \n{table}trailer << /Size {font + 1} /Root 1 0 R >>\n"
                      f"startxref\n{len(content)}\n%%EOF\n").encode()


def shell(command, *arguments):
    """A command of the shell, in which "$@" are the program and the arguments."""
    return finished(["/bin/sh", "-c", command, "sh", PROGRAM, *arguments])


class ProgramTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        self.out = self.folder / "out"

    def print(self, *arguments, **environment):
        return run("--batch", "--output", self.out, *arguments, **environment)

    def stored(self, name, content):
        path = self.folder / name
        path.write_bytes(content)
        return path

    def names(self):
        """Of all that is in the output folder."""
        return sorted(path.name for path in self.out.iterdir())

    def ticket(self, entries="options"):
        return json.loads((self.out / "sample.ticket.json").read_text())[entries]

    def assert_quiet(self, run):
        self.assertEqual((run.status, run.err), (0, ""))

    def assert_refused(self, run, status, *words):
        """One line on standard error that holds all the words and no control character."""
        self.assertEqual((run.status, run.out), (status, ""), run.err)
        self.assertRegex(run.err, "\\Acorvel-print: [^\0-\x1f\x7f-\x9f]*\n\\Z")
        for word in words:
            self.assertIn(word, run.err)
