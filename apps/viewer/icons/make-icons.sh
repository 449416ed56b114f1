#!/usr/bin/env bash
# Draws the icon at every size of the icon theme again, with rsvg-convert (Debian: librsvg2-bin). Up to
# 24 pixels it has fewer lines.
set -euo pipefail
cd "$(dirname "$0")"

for size in 16 22 24 32 48 64 128 256; do
    source=hicolor/scalable/apps/zalento-viewer.svg
    [ "$size" -gt 24 ] || source=zalento-viewer-small.svg
    folder=hicolor/${size}x$size/apps
    mkdir -p "$folder"
    rsvg-convert --width "$size" --height "$size" --output "$folder/zalento-viewer.png" "$source"
done
