# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""makePortalPicture.py BACK_END PHOTO PICTURE: the README's picture of the dialog over another program's window, taken on
a desktop of its own. Needs ImageMagick."""

import pathlib
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).parent
sys.path.insert(0, str(HERE.parent.parent / "tests/portal_end_to_end"))
from desktop import Desktop, until  # noqa: E402

back_end, photo, picture = sys.argv[1:]
desktop = Desktop(back_end)
try:
    desktop.child("/usr/bin/python3", str(HERE / "photoViewer.py"), photo, environment={"GTK_USE_PORTAL": "1"})
    until(lambda: desktop.xdotool("search", "--onlyvisible", "--name", "^Photo Viewer").split(), "the viewer")
    desktop.new_dialog()
    time.sleep(2)  # the printer and its panels arrive
    subprocess.run(["import", "-window", "root", "-crop", "1340x980+130+110", "+repage", picture],
                   env=desktop.environment, check=True)
finally:
    desktop.end()
