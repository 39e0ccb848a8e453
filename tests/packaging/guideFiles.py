# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""guideFiles.py GUIDE FOLDER: writes each block of the guide that names a file as that file, and all shell commands, in
their order, as commands.sh."""
import pathlib
import re
import sys

guide, folder = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
commands = ["set -e\n"]
for language, name, content in re.findall(r"^```(\w+) ?(\S*)\n(.*?)^```$", guide.read_text(), re.M | re.S):
    if language == "sh":
        commands.append(content)
    else:
        (folder / name).write_text(content)
(folder / "commands.sh").write_text("".join(commands))
