#!/usr/bin/env bash
# Builds and runs every benchmark and prints one table.
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    cat <<END
Usage: scripts/benchmark.sh [--again] [--help]

Installs what is missing (build.txt and benchmark.txt of scripts/packages: ImageMagick and valgrind
among others), builds the release programs, runs the benchmarks, and prints a table in Markdown.
Results are kept as JSON in build/release/benchmark-results. A benchmark whose program has not changed
since is not run again. Times are worth comparing only from a machine that does nothing else.

  --again   run all of them once more
  --help    this text
END
}

again=no
for argument in "$@"; do
    case $argument in
        --again) again=yes ;;
        --help | -h)
            usage
            exit 0
            ;;
        *)
            echo "benchmark.sh: unknown argument: $argument" >&2
            usage >&2
            exit 2
            ;;
    esac
done

. scripts/build.sh
scripts/setup.sh build benchmark
configure release
build release

programs=build/release/bin
library=build/release/lib/libzalento.so
results=build/release/benchmark-results
mkdir -p "$results"
[ "$again" = no ] || rm -f "$results"/*
load=$(cut -d ' ' -f 1 /proc/loadavg)
awk -v load="$load" -v processors="$(nproc)" 'BEGIN { exit !(load > processors / 2) }' &&
    echo "benchmark.sh: the machine is busy (load $load); read the ratios, not the times" >&2

# is_current <result> <what it comes from...>
is_current() {
    result=$1
    shift
    [ -s "$result" ] || return 1
    for source in "$@"; do
        [ "$result" -nt "$source" ] || return 1
    done
}

# keep <result> <command...>: the command's standard output becomes the result when it succeeds.
keep() {
    result=$1
    shift
    "$@" >"$result.part"
    mv "$result.part" "$result"
}

# run_benchmark <name> [<command to run it through...>]
run_benchmark() {
    name=$1
    shift
    json=$results/$name.json
    if ! is_current "$json" "$programs/$name" "$library"; then
        echo "benchmark.sh: $name" >&2
        keep "$json" "$@" "$programs/$name" --benchmark_format=json 2>"$results/$name.log"
    fi
}

# One paint of each object and its floor: callgrind dumps behind each of them.
count_instructions() {
    rm -f "$results"/callgrind.*
    valgrind --tool=callgrind --collect-atstart=no --toggle-collect=countedCall \
        --dump-after=countedCall --callgrind-out-file="$results/callgrind" \
        "$programs/count_paint" 2>"$results/count_paint.log" >"$results/count_paint.names"
    printf '['
    part=0
    while read -r name; do
        [ "$part" -eq 0 ] || printf ','
        printf '{"name":"%s","ours":%s,"floor":%s}\n' "$name" \
            "$(sed -n 's/^totals: //p' "$results/callgrind.$((part + 1))")" \
            "$(sed -n 's/^totals: //p' "$results/callgrind.$((part + 2))")"
        part=$((part + 2))
    done <"$results/count_paint.names"
    printf ']\n'
    rm -f "$results"/callgrind*
}

for program in bench_paint bench_clicks bench_picking bench_lateral bench_correction bench_curve bench_math \
    bench_alignmentfit bench_uncertainty bench_unrolling bench_snap; do
    run_benchmark "$program"
done
if ! is_current "$results/instructions.json" "$programs/count_paint" "$library"; then
    echo "benchmark.sh: instructions" >&2
    keep "$results/instructions.json" count_instructions
fi
# The viewer needs a display; its scene is drawn as on a machine without a GPU.
run_benchmark bench_programs xvfb-run --auto-servernum --server-args='-screen 0 1280x800x24' \
    env QT_QUICK_BACKEND=software QT_QPA_PLATFORM=xcb
python3 benchmarks/table.py "$results" | tee "$results/table.md"
