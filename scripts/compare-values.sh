#!/usr/bin/env bash
# Measures the sample pictures with the programs of two builds and compares the values.
set -euo pipefail
cd "$(dirname "$0")/.."

[ $# -eq 2 ] || {
    cat >&2 <<END
Usage: scripts/compare-values.sh PRESET PRESET

Builds zalento-measure of both presets (one may be armhf or arm64) and measures every sample that
has a session. Fails when a text differs or a number by more than the limit below.
END
    exit 2
}

# The C libraries' sin, cos, tan, atan2 and acos may differ by one unit in the last place, 1.1e-16
# of the value. A measure takes some hundred of them and loses up to four digits where nearby points
# are subtracted: 100 * 1e-16 * 1e4.
limit=1e-10

. scripts/build.sh

# measure <preset>: the values of all samples as CSV.
measure() {
    local emulator=()
    case $1 in
        armhf) emulator=(qemu-arm-static -L build/sysroot-armhf) ;;
        arm64) emulator=(qemu-aarch64-static -L build/sysroot-arm64) ;;
    esac
    "${emulator[@]}" "build/$1/bin/zalento-measure" measure --recursive --format csv samples
}

for preset in "$@"; do
    configure "$preset"
    build "$preset" zalento-measure
    measure "$preset" >"build/$preset/values.csv"
done

# Numbers stand in the fifth column; every other one has to be the same text.
paste -d '\n' "build/$1/values.csv" "build/$2/values.csv" | awk -F, -v limit="$limit" '
    NR % 2 { split($0, first, ","); line = $0; next }
    NR == 2 { next }
    {
        compared++
        other_line = $0
        number = first[5]; other = $5
        $5 = first[5] = ""
        texts = ""
        for (i = 1; i <= NF; ++i) texts = texts "," first[i]
        own = ""
        for (i = 1; i <= NF; ++i) own = own "," $i
        scale = number < 0 ? -number : number + 0
        difference = other - number
        if (difference < 0) difference = -difference
        if (scale > 0) difference /= scale
        if (number "" == other "") same++
        if (difference > largest) largest = difference
        if (texts != own || difference > limit) { print "differs: " line "\n    from: " other_line; failed++ }
    }
    END {
        if (!compared) { print "no value was measured"; exit 1 }
        printf "%d values compared, %d the same to the last digit, largest difference %.2g of the value\n",
               compared, same, largest
        exit failed > 0
    }'
