#!/usr/bin/env bash
# Installs the Debian packages that are missing. Needs neither root nor network when all are there.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
lists=$here/packages

usage() {
    cat <<END
Usage: scripts/setup.sh [--check] [LIST...]

Installs what is missing of the Debian packages that scripts/packages/LIST.txt names.
Lists: $(cd "$lists" && echo *.txt | sed 's/\.txt//g') (default: build)

  --check   install nothing; name what is missing and fail when something is
  --help    this text

With ZALENTO_SKIP_SETUP=1 in the environment nothing is looked at or installed.
END
}

fail() {
    echo "setup: $*" >&2
    exit 1
}

# The package names of the lists given, without comments.
wanted_packages() {
    for list in "$@"; do
        sed 's/#.*//' "$lists/$list.txt"
    done | tr -s ' \t' '\n' | sed '/^$/d' | sort -u
}

# Those of the wanted packages that are not installed, on one line.
missing_packages() {
    # shellcheck disable=SC2086  # one argument a package
    installed=$(dpkg-query --show --showformat='${binary:Package} ${db:Status-Status}\n' $wanted 2>/dev/null |
        sed -n "s/ installed$//; T; s/:$(dpkg --print-architecture)$//p; t; p")
    for package in $wanted; do
        echo "$installed" | grep -qxF "$package" || printf '%s ' "$package"
    done
}

# What apt-get has to be run through: nothing for root, sudo for others.
root_prefix() {
    if [ "$(id -u)" -eq 0 ]; then
        echo ''
    elif command -v sudo >/dev/null && sudo true; then
        echo sudo
    else
        fail "these packages are missing and installing needs root, but you are $(id -un) and there is no
sudo that would let you: $missing
Ask an administrator to run: apt-get install $missing"
    fi
}

# run_apt <what for> <apt-get arguments...>: quiet unless it fails.
run_apt() {
    purpose=$1
    shift
    log=$(mktemp)
    # shellcheck disable=SC2086  # an empty prefix must vanish
    if ! $prefix env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300 "$@" \
        >"$log" 2>&1; then
        tail -n 15 "$log" >&2
        rm -f "$log"
        fail "apt-get could not $purpose (its last lines stand above)."
    fi
    rm -f "$log"
}

check_only=no
names=
for argument in "$@"; do
    case $argument in
        --check) check_only=yes ;;
        --help | -h)
            usage
            exit 0
            ;;
        -*)
            echo "setup: unknown option: $argument" >&2
            usage >&2
            exit 2
            ;;
        *)
            [ -f "$lists/$argument.txt" ] || {
                echo "setup: there is no package list named $argument" >&2
                usage >&2
                exit 2
            }
            names="$names $argument"
            ;;
    esac
done
: "${names:=build}"

if [ "${ZALENTO_SKIP_SETUP:-0}" = 1 ]; then
    exit 0
fi

# shellcheck disable=SC2086  # list names hold no spaces
wanted=$(wanted_packages $names)
if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    fail "packages can be installed on Debian and its relatives only, and this system has no apt-get.
Install the equivalents of these, then run again with ZALENTO_SKIP_SETUP=1:
  $(echo "$wanted" | tr '\n' ' ')"
fi

missing=$(missing_packages)
missing=${missing% }
if [ -z "$missing" ]; then
    exit 0
fi
if [ "$check_only" = yes ]; then
    fail "missing packages: $missing"
fi

prefix=$(root_prefix)
echo "setup: installing $missing"
run_apt "refresh its package lists; is the network there?" update
# shellcheck disable=SC2086  # one argument a package
run_apt "install the missing packages" install -y --no-install-recommends $missing

left=$(missing_packages)
[ -z "$left" ] || fail "apt-get reported success, but these are still missing: $left"
echo "setup: done"
