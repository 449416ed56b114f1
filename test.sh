#!/usr/bin/env bash
# Sets up the machine, builds, and passes every test.
set -eu
cd "$(dirname "$0")"

usage() {
    cat <<END
Usage: ./test.sh [--quick] [--qt VERSION] [--target TARGET] [--help]

Installs what is missing, builds everything, and runs every test: as developers build it (dev), then
the same with Qt 6 (dev-qt6), then with checks for memory errors and undefined behaviour (asan), then
with checks for data races (tsan). Ends with CTest's own summaries, that of dev last. Fails when a step
or a test fails.

  --quick           the first of the four only
  --qt VERSION      5 or 6: the one of the first two with that version of Qt
  --target TARGET   armhf or arm64: cross-build, and run the unit tests and the command-line program in
                    an emulator. Makes build/sysroot-TARGET once, from this machine's package mirror.
  --help            this text
END
}

refuse() {
    echo "test.sh: $*" >&2
    usage >&2
    exit 2
}

quick=no
qt=
target=
while [ $# -gt 0 ]; do
    case $1 in
        --quick) quick=yes ;;
        --target)
            [ $# -ge 2 ] || refuse "--target needs a value"
            target=$2
            shift
            ;;
        --qt)
            [ $# -ge 2 ] || refuse "--qt needs a value"
            qt=$2
            shift
            ;;
        --qt=*) qt=${1#--qt=} ;;
        --target=*) target=${1#--target=} ;;
        --help | -h)
            usage
            exit 0
            ;;
        *) refuse "unknown option: $1" ;;
    esac
    shift
done
case $qt in
    '' | 5 | 6) ;;
    *) refuse "unknown version of Qt: $qt" ;;
esac
[ -z "$qt" ] || [ -z "$target" ] || refuse "--qt and --target do not go together"
case $target in
    '' | armhf | arm64) ;;
    *) refuse "unknown target: $target" ;;
esac

. scripts/build.sh

stage() {
    printf '\n==> %s\n' "$*"
}

title_of() {
    case $1 in
        dev) echo "Development build" ;;
        dev-qt6) echo "Development build with Qt 6" ;;
        asan) echo "Memory and undefined behaviour" ;;
        tsan) echo "Data races" ;;
        *) echo "Cross-built for $1, emulated" ;;
    esac
}

# run_stage <preset>: configures, builds and tests; keeps CTest's closing lines for the end.
run_stage() {
    title=$(title_of "$1")
    stage "$title: build"
    configure "$1"
    build "$1"
    stage "$title: tests"
    if [ "$1" = tsan ] && ctest --preset tsan -N | grep -q '^Total Tests: 0$'; then
        echo "No test is labelled tsan."
        return
    fi
    ctest --preset "$1" --parallel "$(job_count)" --output-log "build/$1/tests.log"
    summaries="
$title:
$(sed -n '/% tests passed,/,$p' "build/$1/tests.log")
$summaries"
}

summaries=
presets="dev dev-qt6 asan tsan"
[ "$quick" = no ] || presets=dev
case $qt in
    5) presets=dev ;;
    6) presets=dev-qt6 ;;
esac
[ -z "$target" ] || presets=$target
sets="build test"
case $presets in
    *qt6*) sets="$sets qt6" ;;
esac

stage "Packages"
scripts/setup.sh $sets ${target:+"$target"}
[ -z "$target" ] || scripts/make-sysroot.sh "$target"
for preset in $presets; do
    run_stage "$preset"
done
if [ -n "$target" ]; then
    stage "Measured values of the samples: this machine and $target"
    scripts/compare-values.sh release "$target"
fi

stage "All passed in $((SECONDS / 60)) min $((SECONDS % 60)) s"
echo "$summaries"
