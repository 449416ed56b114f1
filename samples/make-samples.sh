#!/bin/bash
# Draws every picture of this folder again: make-samples.sh <pipe-picture> [folder]
# The folder defaults to the one of this script; existing pictures are written over.
set -euo pipefail

tool=$(realpath "$1")
cd "${2:-$(dirname "${BASH_SOURCE[0]}")}"

draw() {
    local name=$1
    shift
    "$tool" --force "$@" "$name.jpg"
}

draw crack     --scene crack     --size 1024x768 --crack-width 8 --laser-distance 50
draw dimension --scene dimension --spall-length 160 --spall-width 90
draw water     --scene water     --water 25
draw branch    --scene branch    --branch-angle 45 --branch-share 50 --branch-clock 90
draw bend      --scene bend      --bend-angle 30 --bend-clock 90
draw joint     --scene joint     --bend-angle 10 --bend-clock 270
draw section   --scene section   --deposit-height 32 --deposit-depth 10
# Cameras beside the axis, turned, with other lenses: these have to be aligned first.
draw tilted    --scene dimension --size 1024x768 --pipe-length 700 --fov 52 --camera-height 43 --offset-x 35 --yaw 3 --pitch -2.5 --spall-length 160 --spall-width 90
draw flooded   --scene dimension --size 800x600 --material clay --diameter 400 --fov 64 --camera-height 57 --offset-x -28 --yaw -4 --pitch 1.5 --water 28 --spall-length 200 --spall-width 120 --seed 7
