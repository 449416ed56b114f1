#!/usr/bin/env bash
# Builds the Debian packages and tries them in a clean root.
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    cat <<END
Usage: scripts/package.sh [--twice] [--build-only] [--help]

Builds the Debian packages from what git knows of the tree, has lintian look at them, and, in a root
with nothing but Debian's base system, installs them, runs the programs, builds and runs a host with Qt 5
and one with Qt 6, loads the QML module, and removes them again. The packages are left in build/package.
Needs root for the clean root, or user namespaces.

  --twice       builds again in another folder; the packages must be the same, byte for byte
  --build-only  no clean root
  --help        this text
END
}

twice=no
clean_root=yes
for argument in "$@"; do
    case $argument in
        --twice) twice=yes ;;
        --build-only) clean_root=no ;;
        --help | -h)
            usage
            exit 0
            ;;
        *)
            echo "package.sh: unknown option: $argument" >&2
            usage >&2
            exit 2
            ;;
    esac
done

. scripts/build.sh
scripts/setup.sh build qt6 package

packages=$(pwd)/build/package

# build_packages <folder>: into the folder, from a copy of the tree in it; the log stands beside.
build_packages() {
    rm -rf "$1"
    mkdir -p "$1/zalento"
    git ls-files -z --cached --others --exclude-standard | tar -c --null --files-from=- | tar -x -C "$1/zalento"
    echo "package.sh: building in $1"
    if ! (cd "$1/zalento" && DEB_BUILD_OPTIONS="parallel=$(job_count)" dpkg-buildpackage --no-sign) \
        >"$1/build.log" 2>&1; then
        tail -n 30 "$1/build.log" >&2
        exit 1
    fi
    rm -rf "$1/zalento"
}

# The same source gives the same packages wherever it lies.
build_again() {
    again=$(mktemp -d)
    build_packages "$again/a-folder-with-a-longer-name"
    for package in "$packages"/*.deb; do
        cmp "$package" "$again/a-folder-with-a-longer-name/$(basename "$package")"
    done
    rm -rf "$again"
    echo "package.sh: built twice, the same packages"
}

# The copyright file waits for a licence. Whoever may make a clean root here is root.
check_packages() {
    lintian --allow-root --fail-on error,warning --suppress-tags no-copyright-file,no-debian-copyright-in-source "$packages"/*.changes
}

# This machine's own sources of Debian, as sources.list lines.
debian_sources() {
    apt-get indextargets --format "deb \$(REPO_URI) \$(RELEASE) main" \
        'Created-By: Packages' 'Origin: Debian' 'Component: main' | sort -u
}

try_in_clean_root() {
    echo "package.sh: installing, running and removing in a clean root"
    debian_sources | mmdebstrap --variant=apt --format=null \
        --customize-hook="mkdir \"\$1/packages\" \"\$1/samples\"" \
        --customize-hook="cp '$packages'/*.deb \"\$1/packages/\" && rm \"\$1\"/packages/*-dbgsym_*" \
        --customize-hook="cp samples/crack.jpg samples/crack.jpg.zalento.json qml/examples/*.qml tests/install/consumer.cpp scripts/try-packages.sh \"\$1/samples/\"" \
        --customize-hook="chroot \"\$1\" bash /samples/try-packages.sh" \
        '' /dev/null - >"$packages/clean-root.log" 2>&1 || {
        tail -n 30 "$packages/clean-root.log" >&2
        exit 1
    }
    grep '^try:' "$packages/clean-root.log"
}

build_packages "$packages"
check_packages
[ "$twice" = no ] || build_again
[ "$clean_root" = no ] || try_in_clean_root
ls -l "$packages"/*.deb
