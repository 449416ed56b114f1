#!/bin/bash
# Draws the guide's pictures from the samples: make-pictures.sh <zalento-measure>. Needs ImageMagick.
set -euo pipefail

tool=$(realpath "$1")
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
overlays=$(mktemp -d)
trap 'rm -r "$overlays"' EXIT

"$tool" measure --recursive "$here/../../samples" --overlay png --output "$overlays" > /dev/null

# The crack is small: its surroundings at twice the size.
convert "$overlays/crack.overlay.png" -crop 320x240+560+0 +repage -resize 640 -quality 85 "$here/crack.jpg"
for kind in dimension water branch bend joint section; do
    convert "$overlays/$kind.overlay.png" -resize 640 -quality 85 "$here/$kind.jpg"
done
