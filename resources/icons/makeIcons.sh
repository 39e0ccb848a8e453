#!/usr/bin/env bash
# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
#
# Draws the icon theme's bitmaps again from corvel-print.svg. Needs rsvg-convert (Debian: librsvg2-bin).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
for size in 16 22 24 32 48 64 128 256; do
    folder=hicolor/${size}x$size/apps
    mkdir -p "$folder"
    rsvg-convert --width "$size" --height "$size" --output "$folder/corvel-print.png" corvel-print.svg
done
