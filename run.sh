#!/usr/bin/env bash
# Sets up the machine, builds, and does the main job: measuring on the sample pictures.
set -euo pipefail
cd "$(dirname "$0")"

usage() {
    cat <<END
Usage: ./run.sh [--measure] [PICTURE] [--help]

Installs what is missing and builds the release programs. With a display it opens PICTURE (or a
sample) in the viewer. Without one it measures every sample picture that has a session beside it,
prints the values and leaves the pictures with the overlay in out/.

  --measure   measure the samples although there is a display
  --help      this text
END
}

measure=no
picture=
for argument in "$@"; do
    case $argument in
        --measure) measure=yes ;;
        --help | -h)
            usage
            exit 0
            ;;
        -*)
            echo "run.sh: unknown option: $argument" >&2
            usage >&2
            exit 2
            ;;
        *)
            [ -f "$argument" ] || {
                echo "run.sh: there is no picture $argument" >&2
                exit 2
            }
            picture=$argument
            ;;
    esac
done

. scripts/build.sh
scripts/setup.sh build
configure release
build release zalento-viewer zalento-measure
programs=build/release/bin

# The values go to the terminal, the annotated pictures to out/.
measure_samples() {
    "$programs/zalento-measure" measure --recursive --overlay both --output out --force samples
    echo
    echo "The pictures with the measured overlay are in $(pwd)/out (PNG and SVG)."
}

if [ "$measure" = no ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$programs/zalento-viewer" "${picture:-samples/section.jpg}"
fi
measure_samples
