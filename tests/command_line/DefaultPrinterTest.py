# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""What becomes of a print for which no printer is named, when the default one or the server that may have it is not
there."""

import json
import socketserver
import sys
import threading
import unittest

from program import PHOTO, PPD, ProgramTest, run

ABSENT = "/nonexistent/cups.sock"
PRINT = "--batch", "--output", "out", PHOTO
SERVERS = (  # what a server says to everything, and the reason that the program then names
    (None, "nothing answers at"),
    (b"", "the connection broke"),
    (b"HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"stub\"\r\nContent-Length: 0\r\n\r\n", "refused"),
    (b"HTTP/1.1 500 Internal Server Error\r\nContent-Length: 0\r\n\r\n", "Internal Server Error"))


class DefaultPrinterTest(ProgramTest):
    def run_at_home(self, *arguments, **environment):
        return run(*arguments, folder=self.folder, **{"HOME": str(self.folder), "XDG_CONFIG_HOME": ""} | environment)

    def set_default(self):
        (self.folder / ".cups").mkdir(exist_ok=True)
        self.stored(".cups/lpoptions", b"Default mine\n")

    def serve(self, answer):
        class Handler(socketserver.BaseRequestHandler):
            def handle(self):
                self.request.recv(4096)
                self.request.sendall(answer)
        server = socketserver.ThreadingUnixStreamServer(str(self.folder / "cups.sock"), Handler)
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        threading.Thread(target=server.serve_forever, args=(0.05,)).start()
        return server.server_address

    def test_fails_rather_than_print_into_files(self):
        for answer, reason in SERVERS:
            with self.subTest(reason):
                self.doCleanups()
                self.setUp()
                place = {"CUPS_SERVER": ABSENT if answer is None else self.serve(answer)}
                # A server that is not there has no default.
                named = ("--server", ABSENT) if answer is None else ()
                self.assert_refused(self.run_at_home(*PRINT, *named, **place), 1, reason, "built-in")
                self.assert_refused(self.run_at_home("--list-printers", *named, **place), 1, reason)
                words = reason, '"mine"', "your default printer", "built-in"
                self.assert_refused(self.run_at_home(*PRINT, **place, LPDEST="mine"), 1, *words)
                self.set_default()
                self.assert_refused(self.run_at_home(*PRINT, **place), 1, *words)
                self.assertFalse(self.out.exists())
                self.assertEqual(self.run_at_home(*PRINT, **place, LPDEST="built-in").status, 0)
                self.assertIn("sample.pdf", self.names())

    def test_built_in_printer_of_a_machine_without_server(self):
        listed = self.run_at_home("--list-printers", CUPS_SERVER=ABSENT)
        self.assertEqual(listed.out, "built-in\tBuilt-in printer (files)\tready\tdefault\n")
        printer, = json.loads(self.run_at_home("--list-printers", "--json", CUPS_SERVER=ABSENT).out)
        self.assertEqual((printer["name"], printer["default"]), ("built-in", True))
        self.assertEqual(self.run_at_home(*PRINT, CUPS_SERVER=ABSENT).status, 0)
        self.assertIn("sample.pdf", self.names())
        for arguments in PRINT, ["--list-printers"]:  # somebody has chosen the port
            self.assert_refused(self.run_at_home(*arguments, CUPS_SERVER="localhost:1"), 1,
                                "nothing answers at localhost:1)")
        self.set_default()
        for arguments in PRINT, ["--list-printers"]:
            self.assert_refused(self.run_at_home(*arguments, CUPS_SERVER=ABSENT), 1, "print server is running")

    def test_built_in_printer_with_a_preset(self):
        presets = self.folder / ".config/corvel-print/lpoptions"
        presets.parent.mkdir(parents=True)
        presets.write_text("Dest built-in/10%20%2F%2015 Red=7 copies=3\n")
        name = "built-in/10 / 15"
        for done in (self.run_at_home("--summary", LPDEST=name), self.run_at_home("--summary", "--printer", name),
                     self.run_at_home("--summary", "--printer", "built-in", "--preset", "10 / 15"),
                     self.run_at_home("--summary", "--ppd", PPD, "--preset", "10 / 15"),
                     self.run_at_home("--summary", "--preset", "10 / 15", LPDEST="built-in"),
                     self.run_at_home("--summary", "--preset", "10 / 15", CUPS_SERVER=ABSENT)):
            self.assertEqual(done.err, "")
            self.assertIn("\nRed: 7\n", done.out)
            self.assertIn("\nCopies: 3\n", done.out)
        # Whatever there is to leave out of it is one line.
        presets.write_text("Dest built-in/odd Red=99 copies=none Gone=1\n")
        odd = self.run_at_home("--summary", "--printer", "built-in/odd")
        self.assert_refused(odd._replace(out=""), odd.status, '"none"', "Red", "Gone")


unittest.main(argv=sys.argv[:1])
