# shellcheck shell=bash
# Completion of zalento-measure for bash: what --help names.

# The words that an option takes.
_zalento_measure_values()
{
    case $1 in
        --kind) zalento-measure kinds | grep -o '^[A-Z][A-Za-z]*' ;;
        --direction) echo downstream upstream ;;
        --view-style) echo measure ends full ;;
        --unit) echo metric imperial ;;
        --lens-view) echo square all ;;
        --format) echo text json jsonl csv ;;
        --overlay) echo png svg both ;;
        --map) echo scale uncertainty ;;
        *) return 1 ;;
    esac
}

_zalento_measure()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} words
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ]; then
        words='measure render unroll lens report kinds --help --version'
    elif words=$(_zalento_measure_values "$before"); then
        :
    elif [[ $word == -* ]]; then
        words=$(zalento-measure --help |
            sed -n '/^Options:/,/^$/s/^  \(-., \)\?\(--[a-z-]*\).*/\2/p')
    else
        compopt -o default 2>/dev/null # files and folders
        return
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}

complete -F _zalento_measure zalento-measure
