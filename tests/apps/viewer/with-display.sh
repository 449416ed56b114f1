#!/usr/bin/env bash
# with-display.sh XVFB PROGRAM [ARGUMENT...]: runs the program on a virtual display of its own.
set -euo pipefail

xvfb=$1
shift
number_file=$(mktemp)
"$xvfb" -displayfd 1 -screen 0 1400x1300x24 -nolisten tcp >"$number_file" 2>/dev/null &
server=$!
trap 'kill "$server" 2>/dev/null || true; rm -f "$number_file"' EXIT

for _ in $(seq 200); do
    [ -s "$number_file" ] && break
    sleep 0.05
done
[ -s "$number_file" ] || {
    echo "with-display.sh: the virtual display does not start" >&2
    exit 1
}

status=0
DISPLAY=":$(cat "$number_file")" "$@" || status=$?
exit "$status"
