#!/usr/bin/env bash
# Sets up the machine, builds, and does the main job: measuring on the sample pictures.
set -euo pipefail
cd "$(dirname "$0")"

usage() {
    cat <<END
Usage: ./run.sh [--measure] [PICTURE] [--help]

Installs what is missing and builds the release programs. With a display it opens PICTURE (or the
first sample picture) in the viewer. Without one it measures every sample picture that has a session
beside it and leaves values and annotated pictures in out/.

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
build release

view() {
    if [ -z "$picture" ]; then
        picture=$(first_sample)
    fi
    exec build/release/bin/zalento-viewer "$picture"
}

# A sample with a session beside it shows more than a bare picture.
first_sample() {
    local candidate
    for candidate in samples/*.jpg samples/*.png; do
        if [ -f "${candidate%.*}.zalento.json" ] || [ -f "$candidate.zalento.json" ]; then
            echo "$candidate"
            return
        fi
    done
    echo "run.sh: samples/ holds no picture with a session" >&2
    exit 1
}

# Values and pictures of every sample session go to out/; one bad session does not stop the rest.
measure_samples() {
    local session failed=0
    mkdir -p out
    for session in samples/*.zalento.json; do
        [ -f "$session" ] || {
            echo "run.sh: samples/ holds no sessions" >&2
            exit 1
        }
        build/release/bin/zalento-measure measure --session "$session" --format text \
            --overlay both --output out --force || failed=1
    done
    echo
    echo "The annotated pictures are in $(pwd)/out:"
    (cd out && ls)
    return "$failed"
}

if [ "$measure" = no ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    view
else
    measure_samples
fi
