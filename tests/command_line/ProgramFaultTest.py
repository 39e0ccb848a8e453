# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""corvel-print when it gets no descriptors, and when it is killed. It leaves either what was there before or
the complete result."""

import pathlib
import random
import signal
import subprocess
import sys
import time
import unittest

from program import PHOTO, PROGRAM, ProgramTest, run, shell


class ProgramFaultTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.new = self.left("5x7")
        self.old = self.left("4x6")
        self.assertEqual((len(self.new), list(self.new)), (2, list(self.old)))
        for name, content in self.new.items():
            self.assertNotEqual(content, self.old[name])

    def arguments(self, size):
        return "--batch", "--overwrite", "--printer", "built-in", "--output", self.out, "-o", f"PageSize={size}", PHOTO

    def left(self, size=None):
        """The files in the folder by their names: when nothing is in its way, what the run with this size leaves."""
        if size:
            self.assert_quiet(run(*self.arguments(size)))
        return {name: (self.out / name).read_bytes() for name in self.names()}

    @unittest.skipIf(b"__asan_init" in pathlib.Path(PROGRAM).read_bytes(),
                     "The sanitizer looks at objects through a pipe, and takes every one for broken when it gets none.")
    def test_no_descriptors_left(self):
        for limit in range(3, 100):
            done = shell(f'unset QT_QPA_PLATFORM; ulimit -n {limit}; exec "$@"', *self.arguments("5x7"))
            if done.status == 127:  # the dynamic linker could not open the program's libraries
                continue
            if done.status == 0:
                break
            self.assert_refused(done, 1)
            self.assertNotRegex(done.err, '""|Success')
            self.assertEqual(self.left(), self.old)
        self.assert_quiet(done)
        self.assertGreater(limit, 4)
        # A strings table that could not be read leaves the summary with other names; the page is the same.
        self.assertEqual(self.left()["sample.pdf"], self.new["sample.pdf"])

    def test_killed_while_printing(self):
        start = time.monotonic()
        self.left("4x6")
        duration = time.monotonic() - start
        for number in signal.SIGKILL, signal.SIGTERM:
            statuses = []
            for _ in range(12):
                process = subprocess.Popen([PROGRAM, *self.arguments("5x7")], stdout=subprocess.DEVNULL,
                                           stderr=subprocess.DEVNULL)
                time.sleep(random.uniform(0, duration))
                process.send_signal(number)
                statuses.append(process.wait(20))
                files = self.left()
                for name in self.new:
                    self.assertIn(files[name], (self.old[name], self.new[name]))
                # What was killed at once may have left something, which the next run takes away.
                self.assertTrue(number == signal.SIGKILL or len(files) == 2)
                self.assertEqual(self.left("4x6"), self.old)
            self.assertTrue(any(statuses))


unittest.main(argv=sys.argv[:1])
