# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""PDF documents, alone and beside photos, with the built-in printer."""

import json
import os
import re
import resource
import subprocess
import sys
import unittest

from program import PHOTO, PROGRAM, ProgramTest, pdf, run


class DocumentsTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.report = self.stored("report.pdf", pdf(7))

    def planned(self, *arguments):
        """The pages on each sheet, 0 for a photo."""
        done = run("--printer", "built-in", "--dry-run", "--json", *arguments)
        self.assertEqual((done.status, done.err), (0, ""))
        sheets = {}
        for job in json.loads(done.out):
            for item in job["photos"]:
                sheets.setdefault(item.get("sheet", job["sheet"]), []).append(item.get("page", 0))
        return [sheets[number] for number in sorted(sheets)]

    def printed(self, name="report"):
        """The numbers of the pages, in the order of the PDF, a list for each of its sheets."""
        text = subprocess.run(["pdftotext", self.out / f"{name}.pdf", "-"], capture_output=True, check=True).stdout
        return [[int(number) for number in re.findall(rb"page (\d+)\.", sheet)] for sheet in text.split(b"\f")[:-1]]

    def test_plans_pages(self):
        for arguments, sheets in (
                ([], [[1], [2], [3], [4], [5], [6], [7]]),
                (["--pages", "all"], [[1], [2], [3], [4], [5], [6], [7]]),
                (["--pages", "6-,2"], [[2], [6], [7]]),
                (["--pages", "2-6", "--page-set", "odd"], [[3], [5]]),
                (["--pages", "-3", "--reverse"], [[3], [2], [1]]),
                (["--page-set", "even", "--layout", "pages:2"], [[2, 4], [6]]),
                (["--layout", "booklet", "--pages", "1-5"], [[1], [2], [3], [4, 5]])):
            with self.subTest(arguments):
                self.assertEqual(self.planned(*arguments, self.report), sheets)
        self.assertEqual(self.planned("--pages", "3,5", PHOTO, self.report, PHOTO), [[0], [3], [5], [0]])

    def test_prints_what_was_planned(self):
        for arguments, sheets in (
                (["--pages", "2-4", "--reverse"], [[4], [3], [2]]),
                (["--layout", "pages:4", "--pages", "1-5"], [[1, 2, 3, 4], [5]]),
                (["--scale", "50", "--pages", "7"], [[7]])):
            with self.subTest(arguments):
                done = self.print("--printer", "built-in", "--overwrite", *arguments, self.report)
                self.assertEqual((done.status, done.err), (0, ""))
                self.assertEqual([sorted(sheet) for sheet in self.printed()], sheets)

    def test_keeps_backs_behind_their_fronts(self):
        one, both = ["--one-pdf", "report"], ["-o", "Duplex=DuplexNoTumble"]
        for arguments, sheets in (
                ([*one, "-o", "Duplex=None"], [[3], [2], [1]]),
                (both, [[3], [], [1], [2]]),
                ([*one, *both], [[3], [], [1], [2]]),
                ([*one, *both, PHOTO], [[2], [3], [], [1]]),
                ([*both, "--layout", "booklet"], [[1], [2, 3]])):
            with self.subTest(arguments):
                done = self.print("--ppd", os.environ["CORVEL_LASER_PPD"], "--overwrite", "--reverse", "--pages", "1-3",
                                  *arguments, self.report)
                self.assertEqual((done.status, done.err), (0, ""))
                self.assertEqual([sorted(sheet) for sheet in self.printed()], sheets)

    def test_says_what_is_printed(self):
        done = run("--printer", "built-in", "--dry-run", "--summary", "--pages", "1-3,5", "--page-set", "odd", self.report)
        for line in "Pages: 1-3,5, odd only", f"Document: {self.report}", "Pages: 1,3,5", "Sheets: 1 to 3 of 3":
            self.assertIn(line + "\n", done.out)
        done = run("--printer", "built-in", "--dry-run", "--pages", "6-90", self.report)
        self.assertEqual((done.status, done.err), (0, "corvel-print: There are no pages after page 7.\n"))
        done = run("--printer", "built-in", "--dry-run", "--pages", "4-5", self.report, self.stored("two.pdf", pdf(2)))
        self.assertEqual((done.status, done.err), (0, 'corvel-print: No page of "two.pdf" is printed.\n'))
        self.assert_refused(self.print("--pages", "8-", self.report), 1, "None of the 7 pages")
        self.assert_refused(self.print("--pages", "2", self.stored("one.pdf", pdf(1))), 1, "The only page is not")
        self.assert_refused(self.print("--pages", "1", PHOTO), 1, "--pages")
        self.assert_refused(self.print(self.stored("text.pdf", b"text")), 1, "document of a known kind", "PDF.\n")

    def test_names_all_documents_of_a_job(self):
        other = self.stored("letter.pdf", pdf(2))
        done = self.print("--printer", "built-in", self.report, other, PHOTO)
        self.assertEqual((done.status, done.err), (0, ""))
        self.assertIn("Printed report.pdf and 1 more:", done.out)

    def test_reads_the_standard_input(self):
        command = [PROGRAM, "--batch", "--printer", "built-in", "--output", self.out, "--pages", "2", "-"]
        done = subprocess.run(command, input=pdf(3), capture_output=True, timeout=60)
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertEqual(self.printed("standard-input"), [[2]])

    def test_prints_more_documents_than_files_are_usually_open(self):
        paths = [self.stored(f"{number}.pdf", pdf(1)) for number in range(40)]
        hard = resource.getrlimit(resource.RLIMIT_NOFILE)[1]
        command = [PROGRAM, "--batch", "--printer", "built-in", "--output", self.out, "--one-pdf", "all", *paths]
        done = subprocess.run(command, capture_output=True, timeout=60,
                              preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_NOFILE, (40, hard)))
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertEqual(self.printed("all"), [[1]] * 40)

    def test_prints_a_list(self):
        content = {"format": "corvel-print-list", "version": 1, "pages": "-6", "reverse": True,
                   "photos": [{"file": "report.pdf", "page": page} for page in (5, 7, 2)] + [{"file": "report.pdf"}]}
        for changed, sheets in (({}, [[6], [5], [4], [3], [2], [1], [2], [5]]),
                                ({"reverse": False, "pageSet": "even"}, [[2], [2], [4], [6]])):
            saved = self.stored("list.json", json.dumps(content | changed).encode())
            self.assertEqual(self.planned(saved), sheets)

    def test_saves_previews(self):
        done = run("--printer", "built-in", "--preview", self.folder / "a.png", "--layout", "pages:4", self.report)
        self.assertEqual((done.status, done.err), (0, ""))
        self.assertTrue((self.folder / "a-2.png").exists())


unittest.main(argv=sys.argv[:1])
