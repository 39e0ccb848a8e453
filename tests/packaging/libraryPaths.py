# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""libraryPaths.py FOLDER...: reads every ELF file in the folders and complains about each entry of a RUNPATH or RPATH
from which a stranger's library could be loaded: an empty or relative one, which stands for the current folder or lies in
it, and a folder that others can write to. A missing folder counts as its nearest parent, where it could be made."""

import os
import re
import stat
import subprocess
import sys


def elf_files(folders):
    for folder in folders:
        for parent, _, names in os.walk(folder):
            for name in names:
                path = os.path.join(parent, name)
                if os.path.islink(path) or not os.path.isfile(path):
                    continue
                with open(path, "rb") as file:
                    head = file.read(18)
                if head[:4] == b"\x7fELF" and head[16] in (2, 3):  # programs and shared objects
                    yield path


def fault(entry, path):
    origin = os.path.dirname(os.path.abspath(path))
    folder = re.sub(r"\$(ORIGIN|\{ORIGIN\})", lambda _: origin, entry)
    if not folder:
        return "is empty: the current folder"
    if not folder.startswith("/"):
        return "is relative to the current folder"
    folder = os.path.normpath(folder)
    while not os.path.isdir(folder):
        folder = os.path.dirname(folder)
    mode = os.stat(folder).st_mode
    return f"can be written to by others ({folder})" if mode & (stat.S_IWOTH | stat.S_IWGRP) else None


def main():
    count = 0
    faults = []
    for path in elf_files(sys.argv[1:]):
        count += 1
        lines = subprocess.run(["readelf", "-dW", path], check=True, capture_output=True, text=True).stdout
        for paths in re.findall(r"\(R(?:UN)?PATH\).*\[(.*)\]", lines):
            for entry in paths.split(":"):
                if reason := fault(entry, path):
                    faults.append(f'{path}: the entry "{entry}" of "{paths}" {reason}')
    print(*faults, f"{count} files", sep="\n")
    return 1 if faults or count == 0 else 0


sys.exit(main())
