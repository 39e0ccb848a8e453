#!/usr/bin/env python3
# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""Writes the manual page from its template and from what the program itself says with --help and --version.

    makeManPage.py TEMPLATE PAGE PROGRAM

Each section of the help has its place in the template: "Exit status:" goes to @EXIT_STATUS@.
"""

import argparse
import os
import pathlib
import re
import subprocess


def said(program, argument):
    environment = dict(os.environ, LC_ALL="C", LANGUAGE="")
    run = subprocess.run([program, argument], env=environment, stdin=subprocess.DEVNULL, capture_output=True,
                         encoding="utf-8", check=True)
    return run.stdout


def roff(text):
    """Plain text as roff: nothing in it is a request or an escape."""
    text = text.replace("\\", "\\e").replace("-", "\\-").replace("~", "\\(ti").replace("^", "\\(ha")
    return re.sub(r"(?m)^(?=[.'])", r"\\&", text)


def rows(lines):
    """(term, text) of a table of two columns; a line that is indented further continues the row before it."""
    table = []
    for line in filter(None, lines.splitlines()):
        if line.startswith("   "):
            table[-1][1].append(line.strip())
        else:
            term, *text = re.split(r" {2,}", line.strip(), maxsplit=1)
            table.append((term, text))
    return [(term, " ".join(text)) for term, text in table]


def marked(term):
    """Names in bold, values in italics."""
    words = re.findall(r"[^\s,]+|[\s,]+", term)
    return "".join(roff(word) if not word.strip(", ") else
                   f"\\fB{roff(word)}\\fR" if word[0] in "-0123456789" else f"\\fI{roff(word)}\\fR" for word in words)


def table(lines):
    return "\n".join(f".TP\n{marked(term)}\n{roff(text)}" for term, text in rows(lines))


def examples(lines):
    commands = [f".EX\n{roff(line.strip())}\n.EE" for line in lines.splitlines() if line.strip()]
    return "\n.PP\n".join(commands)


def main():
    parser = argparse.ArgumentParser(description="Writes the manual page of corvel-print.")
    parser.add_argument("template", type=pathlib.Path)
    parser.add_argument("page", type=pathlib.Path)
    parser.add_argument("program")
    arguments = parser.parse_args()

    usage, *sections = re.split(r"(?m)^(\S[^\n]*):\n", said(arguments.program, "--help"))
    page = arguments.template.read_text(encoding="utf-8")
    texts = {"Version": roff(said(arguments.program, "--version").split()[-1]),
             "Description": roff(usage.partition("\n")[2].strip())}
    for heading, lines in zip(sections[::2], sections[1::2]):
        texts[heading] = examples(lines) if heading == "Examples" else table(lines)
    for heading, text in texts.items():
        place = f"@{heading.upper().replace(' ', '_')}@"
        if place not in page:
            raise SystemExit(f"{arguments.template} has no place for \"{heading}\" of the help. Add {place}.")
        page = page.replace(place, text)
    arguments.page.write_text(page, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    try:
        main()
    except (OSError, subprocess.CalledProcessError) as error:
        raise SystemExit(f"The manual page could not be written: {error}.") from error
