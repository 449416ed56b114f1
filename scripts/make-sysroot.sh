#!/usr/bin/env bash
# Makes build/sysroot-ARCH: the Debian packages of another architecture to cross-build against and
# to run emulated programs in. Once; again after its package list changed. Needs no root.
set -eu
cd "$(dirname "$0")/.."

[ $# -eq 1 ] || {
    echo "Usage: scripts/make-sysroot.sh armhf|arm64" >&2
    exit 2
}
arch=$1
sysroot=build/sysroot-$arch
list=scripts/packages/sysroot.txt
stamp=$sysroot/complete
log=build/sysroot-$arch.log

# Programs that run while building: the machine's own stand in for those of the target.
build_tools="moc qmlcachegen qmltyperegistrar rcc uic"

# The machine's own sources of Debian's main suite, as sources.list lines. Updates are left out:
# programs are tried in the sysroot, never shipped from it, and the base suite does not change.
main_suite_sources() {
    apt-get indextargets --format "deb \$(REPO_URI) \$(RELEASE) main" \
        'Created-By: Packages' 'Origin: Debian' 'Component: main' | grep -E ' [a-z]+ main$' | sort -u
}

if [ -f "$stamp" ] && [ ! "$list" -nt "$stamp" ]; then
    exit 0
fi

sources=$(main_suite_sources)
if [ -z "$sources" ]; then
    echo "make-sysroot: apt knows no Debian package source; run 'apt-get update' as root first." >&2
    exit 1
fi

mode=root
[ "$(id -u)" -eq 0 ] || mode=chrootless

echo "make-sysroot: extracting the $arch packages into $sysroot"
mkdir -p build
rm -rf "$sysroot"
if ! echo "$sources" | mmdebstrap --mode=$mode --variant=extract --architectures="$arch" \
    --include="$(sed 's/#.*//' "$list" | xargs | tr ' ' ,)" '' "$sysroot" - >"$log" 2>&1; then
    tail -n 15 "$log" >&2
    rm -rf "$sysroot"
    echo "make-sysroot: mmdebstrap failed (its last lines stand above; all of them in $log)." >&2
    exit 1
fi
for tool in $build_tools; do
    ln -sf "/usr/lib/qt5/bin/$tool" "$sysroot/usr/lib/qt5/bin/$tool"
done
touch "$stamp"
