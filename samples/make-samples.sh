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
