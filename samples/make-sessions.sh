#!/bin/bash
# Writes the session of every picture of this folder again: make-sessions.sh <zalento-measure>
# The clicks are those of the truths; existing sessions are written over.
set -euo pipefail

tool=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")"

session() {
    local picture=$1
    shift
    "$tool" measure --no-session --save-session --force --diameter 300 "$@" "$picture"
}

session crack.jpg --kind CrackWidth --laser 654.542,83.8882 745.261,147.41 \
    --click 695.241,106.858 --click 709.756,117.021
session dimension.jpg --kind PipeDimension \
    --click 188.511,226.203 --click 259.069,125.436
session water.jpg --kind WaterLevel --percentage 25
session branch.jpg --kind BranchAngle --angle 45 --percentage 50 --clock 90
session bend.jpg --kind BendAngle --angle 30 --clock 90
session joint.jpg --kind BendAngle --joint --angle 10 --percentage 50 --clock 270
# The last click, at the first, closes the outline.
session section.jpg --kind CrossSection --percentage 10 \
    --click 490.922,419.548 --click 456.707,375.825 --click 420.354,353.259 --click 388.277,349.027 \
    --click 349.785,368.773 --click 311.293,380.762 --click 277.078,419.548 --click 327.268,447.746 \
    --click 384,457.521 --click 440.732,447.746 --click 490.922,419.548
