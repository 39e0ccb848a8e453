# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""ShellHelpTest.py PROGRAM MAN_PAGE: what the manual page and the completions say about the program."""

import re
import sys
import unittest

from commands import SOURCE, CommandTest, content

PROGRAM, MAN_PAGE = sys.argv[1:]
COMPLETIONS = f"{SOURCE}/packaging/completions/"
# What bash offers for the words, the last of which is being typed.
BASH = r"""source /usr/share/bash-completion/bash_completion; source "$1"; shift
COMP_WORDS=()
for word; do
    IFS== read -ra parts <<<"$word"; first=1
    for part in "${parts[@]}"; do ((first)) || COMP_WORDS+=(=); first=0; COMP_WORDS+=("$part"); done
    [[ $word == *= ]] && COMP_WORDS+=(= ''); [[ $word ]] || COMP_WORDS+=('')
done
COMP_LINE="$*"; COMP_POINT=${#COMP_LINE}; COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); compopt() { :; }
_corvel_print "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
printf '%s\n' "${COMPREPLY[@]}" """


class ShellHelpTest(CommandTest):
    def completions(self, *words):
        return self.output_of("bash", "-c", BASH, "bash", COMPLETIONS + "corvel-print.bash", PROGRAM, *words).split()

    # It is well-formed, and has every line of the help.
    def test_manual_page(self):
        page = self.output_of(
            "groff", "-man", "-ww", "-Tutf8", "-P-cbou", "-rLL=2000n", "-rHY=0", MAN_PAGE)
        self.assertNotIn("warning", page)
        text = " ".join(page.split())
        for line in self.output_of(PROGRAM, "--help").splitlines():
            if not line.endswith(":") and not line.startswith("Usage"):
                self.assert_all_in(re.split(" {2,}", line), text)

    def test_completions_know_every_option(self):
        options = self.output_of(PROGRAM, "--help").split("Options:")[1].split("Exit status:")[0]
        names = set(re.findall(r"^ .*?--([-a-z]+)", options, re.MULTILINE))
        self.assertGreater(len(names), 10)
        self.assertEqual({name.removeprefix("--") for name in self.completions("--")}, names)
        fish, zsh = (content(COMPLETIONS + name).decode() for name in ("corvel-print.fish", "_corvel-print"))
        for name in names:
            self.assertIn(f" -l {name} ", fish)
            self.assertRegex(zsh, f"--{name}[[}}]")

    # The program itself is asked for its printers, their options and choices.
    def test_bash_completes(self):
        printer = "--printer", "built-in", "-o"
        for words, expected in (
                (("--mode", "s"), ["settings"]), (("--mode=c",), ["constraint"]), (("--printer", "b"), ["built-in"]),
                ((*printer, "Sh"), ["SharpnessEnabled=", "SharpnessRadius=", "SharpnessIntensity="]),
                ((*printer, "Overcoat="), ["Glossy", "Matte"]), ((*printer, "Overcoat=M"), ["Matte"]),
                ((f"{SOURCE}/tests/packaging/ShellHelp",), [])):  # no photo
            self.assertEqual(self.completions(*words), expected, words)


unittest.main(argv=sys.argv[:1])
