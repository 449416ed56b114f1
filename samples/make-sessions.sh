#!/bin/bash
# Writes the session of every picture of this folder again: make-sessions.sh <zalento-measure>
# The clicks are those of the truths; existing sessions are written over.
set -euo pipefail

tool=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")"

session() {
    local picture=$1
    shift
    "$tool" measure --no-session --save-session --force "$@" "$picture"
}

session crack.jpg --diameter 300 --kind CrackWidth --laser 654.542,83.8882 745.261,147.41 \
    --click 695.241,106.858 --click 709.756,117.021
session dimension.jpg --diameter 300 --kind PipeDimension \
    --click 188.511,226.203 --click 259.069,125.436
session water.jpg --diameter 300 --kind WaterLevel --percentage 25
session branch.jpg --diameter 300 --kind BranchAngle --angle 45 --percentage 50 --clock 90
session bend.jpg --diameter 300 --kind BendAngle --angle 30 --clock 90
session joint.jpg --diameter 300 --kind BendAngle --joint --angle 10 --percentage 50 --clock 270
# The last click, at the first, closes the outline.
session section.jpg --diameter 300 --kind CrossSection --percentage 10 \
    --click 490.922,419.548 --click 456.707,375.825 --click 420.354,353.259 --click 388.277,349.027 \
    --click 349.785,368.773 --click 311.293,380.762 --click 277.078,419.548 --click 327.268,447.746 \
    --click 384,457.521 --click 440.732,447.746 --click 490.922,419.548
# Aligned by their joints, clicked to half a pixel as far as they can be seen.
session tilted.jpg --diameter 300 --kind PipeDimension --fit-fov \
    --ring "654,7.5 795.5,140.5 850.5,330 800.5,524 658,665.5 276,658.5 144.5,518 100.5,332.5 152.5,150.5 286,17 @0" \
    --ring "526.5,275.5 584.5,290.5 627.5,333 644,391.5 628,450.5 585,493.5 467.5,492.5 425.5,449.5 410.5,391.5 426.5,333.5 468.5,291.5 @700" \
    --click 253.096,187.909 --click 336.674,252.093
session flooded.jpg --diameter 400 --kind PipeDimension --fit-fov \
    --ring "429.5,43 574.5,88 675,197 709,339.5 123.5,343 164,189 278,79 @0" \
    --ring "382,228 418,238 444,264.5 453.5,300.5 308.5,300.5 318.5,264 345,237.5 @1000" \
    --click 220.703,193.617 --click 269.043,224.726
