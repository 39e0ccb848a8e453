# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""A print server that wants a user name and a password, which the program asks for on its terminal."""

import base64
import hashlib
import http.server
import os
import pty
import re
import select
import socket
import subprocess
import sys
import threading
import unittest
import unittest.mock

from program import PROGRAM, ProgramTest, pdf

SUCCESS = bytes.fromhex("0200000000000001") + b"\1G\0\x12attributes-charset\0\5utf-8" + \
    b"H\0\x1battributes-natural-language\0\2en\3"


def md5(text):
    return hashlib.md5(text.encode()).hexdigest()


class LockedServer(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    challenge = 'Basic realm="CUPS"'

    def is_right(self):
        given = self.headers.get("Authorization", "")
        if self.challenge.startswith("Basic"):
            return given == "Basic " + base64.b64encode(b"max:geheim").decode()
        fields = dict(re.findall(r'(\w+)="?([^",]*)"?', given))
        if fields.get("username") != "max":
            return False
        whose, what = md5("max:CUPS:geheim"), md5(f"POST:{fields['uri']}")
        more = f"{fields['nc']}:{fields['cnonce']}:auth:" if "nc" in fields else ""
        return fields["response"] == md5(f"{whose}:abc:{more}{what}")

    def do_POST(self):
        self.rfile.read(int(self.headers["Content-Length"]))
        isRight = self.is_right()
        self.send_response(200 if isRight else 401)
        if not isRight:
            self.send_header("WWW-Authenticate", self.challenge)
        body = SUCCESS if isRight else b""
        self.send_header("Content-Type", "application/ipp")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *arguments):
        pass


class TerminalLoginTest(ProgramTest):
    def setUp(self):
        super().setUp()
        server = http.server.ThreadingHTTPServer(("", 0), LockedServer)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        self.port = server.server_port
        self.command = self.asking("127.0.0.1")

    def asking(self, host):
        return [PROGRAM, "--server", f"{host}:{self.port}", "--list-printers"]

    def on_terminal(self, answers):
        """Standard output and error are no part of the terminal. Returns the status, them, and what the terminal shows."""
        terminal, end = pty.openpty()
        program = subprocess.Popen(["setsid", "--ctty", "--wait", *self.command], stdin=end,
                                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self.addCleanup(program.stdout.close)
        self.addCleanup(program.kill)
        shown = b""
        for question, answer in answers:
            while question not in shown:
                self.assertTrue(select.select([terminal], [], [], 10)[0], shown)
                shown += os.read(terminal, 1000)
            before, _, shown = shown.partition(question)
            self.transcript += before + question
            os.write(terminal, answer)
        written, _ = program.communicate(timeout=20)
        self.transcript += shown
        while select.select([terminal], [], [], 0)[0]:
            self.transcript += os.read(terminal, 1000)
        os.close(end)
        os.close(terminal)
        return program.returncode, written.decode()

    transcript = b""

    def test_asks_on_the_terminal(self):
        for challenge in 'Basic realm="CUPS"', 'Digest realm="CUPS", nonce="abc"':
            with self.subTest(challenge), unittest.mock.patch.object(LockedServer, "challenge", challenge):
                self.transcript = b""
                status, written = self.on_terminal([
                    (b"]: ", b"max\n"), (b"Password: ", b"wrong\n"), (b"not accepted", b""),
                    (b"[max]: ", b"\n"), (b"Password: ", b"gehex\x7fim\n")])
                self.assertEqual((status, written.splitlines()[:1]),
                                 (0, ["built-in\tBuilt-in printer (files)\tready\tdefault"]))
                self.assertIn(b"The print server 127.0.0.1 wants a user name and a password.", self.transcript)
                for secret in b"wrong", b"gehe":
                    self.assertNotIn(secret, self.transcript)

    def test_can_be_canceled(self):
        status, written = self.on_terminal([(b"]: ", b"max\n"), (b"Password: ", b"\x03")])
        self.assertEqual((status, written.count("\n")), (1, 1))
        self.assertIn("wants a user name and a password, and none were entered", written)

    def test_sends_no_password_in_the_clear(self):
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as probe:
            try:
                probe.connect(("192.0.2.1", 9))  # sends nothing
            except OSError:
                self.skipTest("this computer has no network")
            self.command = self.asking(probe.getsockname()[0])
        status, written = self.on_terminal([])
        self.assertEqual((status, written.count("\n"), self.transcript), (1, 1, b""))
        self.assertIn("which would cross the network unencrypted", written)

    def test_asks_for_a_documents_password(self):
        plain, locked = self.stored("plain.pdf", pdf(2)), self.folder / "locked.pdf"
        subprocess.run(["qpdf", "--encrypt", "secret", "owner", "256", "--", plain, locked], check=True)
        self.command = [PROGRAM, "--batch", "--printer", "built-in", "--output", self.out, locked]
        status, written = self.on_terminal([(b"Password: ", b"geheim\n"), (b"Password: ", b"secret\n")])
        self.assertEqual((status, written.startswith("Printed locked.pdf")), (0, True), written)
        for said in b'"locked.pdf" is protected', b'does not open "locked.pdf"':
            self.assertIn(said, self.transcript)
        for secret in b"geheim", b"secret":
            self.assertNotIn(secret, self.transcript)
        status, written = self.on_terminal([(b"Password: ", b"\x03")])
        self.assertEqual((status, written.count("\n")), (1, 1))
        done = subprocess.run(self.command, capture_output=True, text=True, start_new_session=True)
        self.assertEqual((done.returncode, done.stderr.count("\n")), (1, 1))
        self.assertIn("no terminal", done.stderr)

    def test_says_that_there_is_no_terminal(self):
        done = subprocess.run(self.command, capture_output=True, text=True, start_new_session=True)
        self.assertEqual((done.returncode, done.stdout), (1, ""))
        self.assertEqual(done.stderr.count("\n"), 1)
        self.assertIn("there is no terminal to ask on", done.stderr)


unittest.main(argv=sys.argv[:1])
