# shellcheck shell=bash
# For sourcing: the build steps that run.sh and test.sh share. The caller stands in the root of the tree.

# The jobs that fit: one a processor, and none that has to live with less than a gigabyte of memory.
job_count() {
    jobs=$(nproc)
    gigabytes=$(awk '/^MemAvailable/ { print int($2 / 1048576) }' /proc/meminfo)
    [ "$gigabytes" -ge "$jobs" ] || jobs=$gigabytes
    [ "$jobs" -ge 1 ] || jobs=1
    echo "$jobs"
}

# configure <preset>: afresh when that was not done since the presets or a toolchain changed; what
# else the build depends on, the build looks after itself.
configure() {
    stamp=build/$1/configured
    if [ ! -f "build/$1/build.ninja" ] || [ ! -f "$stamp" ] ||
        [ -n "$(find CMakePresets.json cmake/toolchains -newer "$stamp")" ]; then
        rm -f "$stamp"
        mkdir -p "build/$1"
        if command -v ccache >/dev/null; then
            export CMAKE_CXX_COMPILER_LAUNCHER="${CMAKE_CXX_COMPILER_LAUNCHER-ccache}"
        fi
        if ! cmake --fresh --preset "$1" >"build/$1/configure.log" 2>&1; then
            cat "build/$1/configure.log" >&2
            return 1
        fi
        touch "$stamp"
    fi
}

# build <preset> [targets...]: a line a step on a terminal; elsewhere the compiler's messages alone.
build() {
    preset=$1
    shift
    quiet=
    [ -t 1 ] || quiet=--quiet
    # shellcheck disable=SC2086  # an empty option must vanish
    cmake --build --preset "$preset" --parallel "$(job_count)" ${1:+--target "$@"} -- $quiet
}
