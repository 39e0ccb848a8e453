# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""A desktop for a test: an X display with a window manager, a session bus with Debian's xdg-desktop-portal, keys."""

import ctypes
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

PORTAL = "/usr/libexec/xdg-desktop-portal"
PACKAGING = pathlib.Path(__file__).parents[2] / "packaging"
NAME = "org.freedesktop.impl.portal.desktop.corvel"


class Refused(Exception):
    """What this machine does not allow."""


def until(condition, what, seconds=10):
    """The condition's first true value."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"in vain: {what}")
        time.sleep(0.01)


class Desktop:
    def __init__(self, back_end):
        """`back_end` is the program that serves the print portal; the bus starts it."""
        for program in PORTAL, "Xvfb", "openbox", "dbus-daemon", "xdotool", "pdftoppm":
            if not shutil.which(program):
                raise SystemExit(f"{program} is missing: ./test installs it")
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="portal-"))
        self.children = []
        try:
            self.start(back_end)
        except BaseException:
            self.end()
            raise

    def start(self, back_end):
        portals = self.folder / "portals"
        services = self.folder / "data/dbus-1/services"
        for folder in portals, services, self.folder / "run":
            folder.mkdir(mode=0o700, parents=True)
        # As they are installed, beside another back end that this desktop is for as well.
        shutil.copy(PACKAGING / "corvel.portal", portals)
        (portals / "other.portal").write_text(
            "[portal]\nDBusName=org.example.None\nInterfaces=org.freedesktop.impl.portal.Print;\nUseIn=lxqt;\n")
        service = (PACKAGING / f"{NAME}.service.in").read_text().replace("@CORVEL_PORTAL_PROGRAM@", back_end)
        (services / f"{NAME}.service").write_text(service)
        self.environment = os.environ | {
            "XDG_DATA_HOME": f"{self.folder}/data", "XDG_CONFIG_HOME": f"{self.folder}/config",
            "XDG_CACHE_HOME": f"{self.folder}/cache", "XDG_STATE_HOME": f"{self.folder}/state",
            "XDG_RUNTIME_DIR": f"{self.folder}/run", "XDG_DESKTOP_PORTAL_DIR": f"{portals}",
            "XDG_CURRENT_DESKTOP": "LXQt", "GDK_BACKEND": "x11", "QT_QPA_PLATFORM": "xcb",
            "GSETTINGS_BACKEND": "memory", "GIO_USE_VFS": "local", "NO_AT_BRIDGE": "1", "PDEKIT_LOG_STDERR": "1"}
        self.open_display()
        self.child("openbox", "--sm-disable")
        until(lambda: self.xdotool("get_desktop"), f"the window manager\n{self.log()}")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.first_line("dbus-daemon", "--session", "--nofork",
                                                                       "--nosyslog", "--print-address=1")
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.environment["DBUS_SESSION_BUS_ADDRESS"]

    def open_display(self):
        """A server that ends can remove the socket of one that has just got its number. Then another is started."""
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        for _ in range(5):
            self.environment["DISPLAY"] = ":" + self.first_line("Xvfb", "-displayfd", "1", "-screen", "0",
                                                               "1600x1200x24", "-nolisten", "tcp")
            self.display = ctypes.c_void_p(self.x.XOpenDisplay(self.environment["DISPLAY"].encode()))
            if self.display:
                return
        raise Refused(f"Xvfb takes no connections: {self.log().splitlines()[-1:]}")

    def child(self, *command, environment=None, **how):
        with open(self.folder / "log", "ab") as log:
            child = subprocess.Popen(["setpriv", "--pdeathsig", "TERM", *command],
                                     env=self.environment | (environment or {}), stdin=subprocess.DEVNULL,
                                     **({"stdout": log, "stderr": log} | how))
        self.children.append(child)
        return child

    def first_line(self, *command):
        child = self.child(*command, stdout=subprocess.PIPE)
        line = child.stdout.readline().decode().strip()
        child.stdout.close()
        if not line:
            raise Refused(f"{command[0]} does not start: {self.log().splitlines()[-1:]}")
        return line

    def log(self):
        return (self.folder / "log").read_text(errors="replace")

    def end(self):
        if getattr(self, "display", None):
            self.x.XCloseDisplay(self.display)
        for child in reversed(self.children):
            child.terminate()
        for child in reversed(self.children):
            try:
                child.wait(5)
            except subprocess.TimeoutExpired:
                child.kill()
                child.wait()
            if child.stdout:
                child.stdout.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def xdotool(self, *arguments):
        """What it prints; nothing when it finds no window."""
        done = subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, timeout=20,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        return done.stdout.decode()

    def dialogs(self):
        """The back end's windows, as set of ids."""
        return set(self.xdotool("search", "--onlyvisible", "--class", "^corvel-print").split())

    def new_dialog(self, before=frozenset()):
        (dialog,) = until(lambda: self.dialogs() - set(before), f"a dialog\n{self.log()}")
        return dialog

    def parent_of(self, window):
        """The window that it stays in front of."""
        parent = ctypes.c_ulong(0)
        self.x.XGetTransientForHint(self.display, ctypes.c_ulong(int(window)), ctypes.byref(parent))
        return str(parent.value)

    def press(self, dialog, *keys):
        """Presses the keys in the dialog, as a user does."""
        self.xdotool("windowactivate", "--sync", dialog, "key", "--delay", "20", *keys)

    def press_until_gone(self, dialog, key):
        """The dialog may have to wait for its printer."""
        def is_gone():
            if dialog in self.dialogs():
                self.press(dialog, key)
            return dialog not in self.dialogs()
        until(is_gone, f"the dialog to go\n{self.log()}")
