# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""What the tests of this folder share."""

import os
import subprocess
import unittest

SOURCE = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))


def run(*command, **environment):
    """The status of a command and what it wrote to both streams. A variable that is None is removed."""
    variables = {name: value for name, value in (os.environ | environment).items() if value is not None}
    done = subprocess.run(command, env=variables, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=240)
    return done.returncode, done.stdout.decode(errors="replace")


def content(path):
    with open(path, "rb") as file:
        return file.read()


class CommandTest(unittest.TestCase):
    maxDiff = None

    def output_of(self, *command, **environment):
        """What a command writes that has to succeed."""
        status, output = run(*command, **environment)
        self.assertEqual(status, 0, output)
        return output

    def assert_all_in(self, parts, whole):
        for part in parts:
            self.assertIn(part, whole)
