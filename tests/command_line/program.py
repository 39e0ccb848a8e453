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
