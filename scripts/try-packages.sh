#!/usr/bin/env bash
# In a clean root: installs the packages of /packages, uses them, removes them. package.sh calls it.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software LC_ALL=C.UTF-8
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
cd /samples

install() {
    apt-get -q -o Dpkg::Use-Pty=0 install -y --no-install-recommends "$@"
}

# But for the settings of whom the viewer was run by, which are theirs.
our_files() {
    find / -xdev \( -path /proc -o -path /sys -o -path /packages -o -path /samples -o -path /root \) -prune \
        -o \( -iname '*zalento*' -o -iname '*drevon*' \) -print
}

# The viewer shows a picture until it is stopped, and has nothing to complain of.
show_viewer() {
    timeout 10 zalento-viewer crack.jpg 2>viewer.log || [ $? = 124 ]
    ! grep -v '^QStandardPaths' viewer.log
}

# run_host <name for pkg-config>: builds and runs the host of the install tests
run_host() {
    read -ra options <<<"$(pkg-config --cflags --libs "$1")"
    g++ -std=c++17 -fPIC consumer.cpp -o consumer "${options[@]}"
    ./consumer
    echo "try: a host runs that is built with $1"
}

apt-get -q update
install /packages/zalento-tools_*.deb /packages/libzalento1_*.deb fonts-dejavu-core
zalento-measure measure crack.jpg | grep 'crackWidth 8.0 mm'
show_viewer
echo "try: the programs run"

install /packages/libzalento-dev_*.deb /packages/libzalento-qt6-*_*.deb \
    /packages/qml-module-*.deb /packages/qml6-module-*.deb g++ pkg-config qmlscene qmlscene-qt6
run_host zalento-measuring
run_host zalento-measuring-qt6

for scene in 01-overlay.qml 05-measurement.qml; do
    /usr/lib/qt5/bin/qmlscene --quit $scene
    /usr/lib/qt6/bin/qmlscene --quit $scene
done
echo "try: the QML modules load with Qt 5 and Qt 6"

dpkg --purge zalento-tools qml-module-drevon-zalento qml6-module-drevon-zalento libzalento-dev \
    libzalento-qt6-dev libzalento1 libzalento-qt6-1
left=$(our_files)
[ -z "$left" ] || {
    echo "These are left: $left" >&2
    exit 1
}
echo "try: removed, nothing is left"
