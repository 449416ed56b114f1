#!/usr/bin/env bash
# completion.sh <zalento-measure> <completion for bash>: every option of the help is offered, and every
# value that is offered is one that the program takes.
set -eu
PATH=$(dirname "$1"):$PATH
# shellcheck source=/dev/null
source "$2"

# offered <words of the line...>: what completes its last word
offered() {
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    _zalento_measure
    printf '%s\n' "${COMPREPLY[@]}"
}

fail() {
    echo "completion: $*" >&2
    exit 1
}

difference=$(diff <(offered zalento-measure measure -- | sort) \
    <(zalento-measure --help | grep -o -e '--[a-z-]*[a-z]' | sort -u)) ||
    fail "the options of the help are others: $difference"

# complains <pattern> <words...>: whether the program has this to say of them
complains() {
    zalento-measure "${@:2}" 2>&1 | grep -q -e "$1"
}

for verb in $(offered zalento-measure ''); do
    ! complains "unknown verb" "$verb" || fail "$verb is no verb"
done

for option in $(offered zalento-measure measure --); do
    for value in $(_zalento_measure_values "$option"); do
        ! complains "$option: expected" measure "$option" "$value" no-such-picture.png ||
            fail "$option does not take $value"
    done
done
