#!/usr/bin/env python3
# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""Opens many real PPDs with libcups and with this system, and prints where the two differ: in the options, the choices,
the defaults and the conflicts. One long-lived program reads all of them. Exit status 1 when a PPD that libcups opens is
refused here, or when anything differs."""

import argparse
import base64
import collections
import gzip
import importlib.machinery
import importlib.util
import json
import lzma
import pathlib
import re
import subprocess
import sys
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
PACKAGE = pathlib.Path("/usr/lib/cups/driver/openprinting-ppds")


def packaged(path):
    """The PPDs of an archive program of Debian. Its own cat expands the archive again for each PPD."""
    loader = importlib.machinery.SourceFileLoader("archive", str(path))
    sys.dont_write_bytecode = True
    archive = importlib.util.module_from_spec(importlib.util.spec_from_loader("archive", loader))
    loader.exec_module(archive)
    index = archive.load()
    data = lzma.decompress(base64.b64decode(index.pop("ARCHIVE")))
    for name, (start, size, *_) in sorted(index.items()):
        yield name.removeprefix("0/ppd/"), data[start:start + size]


def stored(folder):
    for path in sorted(folder.rglob("*")):
        if path.name.lower().endswith((".ppd", ".ppd.gz")) and path.is_file():
            data = path.read_bytes()
            yield str(path.relative_to(folder)), gzip.decompress(data) if path.suffix == ".gz" else data


def feed(stream, ppds):
    with stream:
        for name, data in ppds:
            stream.write(b"%d %s\n" % (len(data), name.encode()) + data)


def kind(sentence):
    """The sentence without what is particular to one PPD."""
    return re.sub(r'".*?"|\d+|(?<= of )\w+|(?<= for )\w+', "…", sentence)


def print_kinds(title, found, shown):
    kinds = collections.defaultdict(list)
    for name, sentence in found:
        kinds[kind(sentence)].append((name, sentence))
    print(f"\n{title}: {len({name for name, _ in found})} PPDs")
    for cases in sorted(kinds.values(), key=len, reverse=True):
        print(f"  {len(cases)} times, such as")
        for name, sentence in cases[:shown]:
            print(f"    {name}: {sentence if len(sentence) < 400 else sentence[:400] + '…'}")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("ppds", nargs="?", type=pathlib.Path, default=PACKAGE,
                        help="a folder of .ppd and .ppd.gz files, or an archive program (by default that of the Debian "
                        "package openprinting-ppds)")
    parser.add_argument("--program", default=ROOT / "build/dev/bin/compare-ppds")
    parser.add_argument("--trial", action="store_true", help="try each PPD in the separate process, too")
    parser.add_argument("--every", type=int, default=1, metavar="N", help="only every Nth PPD")
    parser.add_argument("--shown", type=int, default=5, metavar="N", help="how many of each kind are named")
    arguments = parser.parse_args()
    if not arguments.ppds.exists():
        parser.error(f"there is no {arguments.ppds}; the default is in the Debian package openprinting-ppds")

    begun = time.monotonic()
    ppds = list(stored(arguments.ppds) if arguments.ppds.is_dir() else packaged(arguments.ppds))[::arguments.every]
    program = subprocess.Popen([arguments.program, *(["--trial"] if arguments.trial else [])], stdin=subprocess.PIPE,
                               stdout=subprocess.PIPE)
    threading.Thread(target=feed, args=(program.stdin, ppds), daemon=True).start()
    results = [json.loads(line.decode(errors="replace")) for line in program.stdout]
    if program.wait() != 0 or len(results) != len(ppds):
        sys.exit(f"compare-ppds ended with status {program.returncode} at {ppds[len(results)][0]}")

    refused = [(each["name"], each["here"]) for each in results if each["here"] and not each["libcups"]]
    differing = [(each["name"], sentence) for each in results for sentence in each["differences"]]
    print_kinds("Opened by libcups and refused here", refused, arguments.shown)
    print_kinds("Different", differing, arguments.shown)
    print_kinds("Refused by libcups, too", [(each["name"], each["libcups"]) for each in results if each["libcups"]],
                arguments.shown)
    print_kinds("Remarks here", [(each["name"], sentence) for each in results for sentence in each["remarks"]], 1)
    theirs, ours = (sum(each["seconds"][i] for each in results) for i in (0, 1))
    slowest = max(results, key=lambda each: each["seconds"][1])
    print(f"\nPPDs: {len(results)}; opened by libcups: {sum(not each['libcups'] for each in results)}; "
          f"opened here: {sum(not each['here'] for each in results)}; "
          f"different: {len({name for name, _ in differing})}; conflicts not compared, since the defaults conflict: "
          f"{sum(each['conflicting'] for each in results)}")
    print(f"Seconds: {time.monotonic() - begun:.0f}, of which libcups {theirs:.0f} and this system {ours:.0f} "
          f"({'with' if arguments.trial else 'without'} the trial process); the slowest here: {slowest['name']}, "
          f"{slowest['seconds'][1]:.1f}")
    sys.exit(1 if refused or differing else 0)


if __name__ == "__main__":
    main()
