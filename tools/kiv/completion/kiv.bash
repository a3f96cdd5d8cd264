# Completion of kiv for bash. What there is to complete is asked of kiv itself.

_kiv_words() {
    case $1 in
    # The rows of the help that stand below this heading.
    commands) echo help; "$kiv" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]\+\) .*/\1/p' ;;
    options) "$kiv" ${2:+"$2"} --help | grep -o -e '--[a-z][a-z-]*' | sort -u ;;
    # What an option may be is listed in braces in its help.
    values)
        local help
        help=$("$kiv" "$2" --help)
        sed -n "s/^ *$3 [A-Z]*:{\([a-z,]*\)}.*/\1/p" <<< "$help" | tr ',' '\n'
        # A range comes as a line of its lowest and highest.
        sed -n "s/^ *$3 INT:INT in \[\([0-9]*\) - \([0-9]*\)\].*/\1 \2/p" <<< "$help" |
            while read -r lowest highest; do seq "$lowest" "$highest"; done
        ;;
    # The options that are followed by a value.
    valued) "$kiv" "$2" --help | sed -n 's/^  \(-[a-z],\)\{0,1\}\(--[a-z-]*\) [A-Z].*/\2/p' ;;
    services) "$kiv" list --names | cut -d / -f 1 | uniq ;;
    resources) "$kiv" list --names ;;
    esac 2>/dev/null
}

_kiv_complete() {
    mapfile -t COMPREPLY < <(compgen -W "$(_kiv_words "$@")" -- "${COMP_WORDS[COMP_CWORD]}")
}

_kiv() {
    local kiv=${COMP_WORDS[0]} command=${COMP_WORDS[1]}
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    if [[ $word == -* ]]; then
        [ "$COMP_CWORD" -gt 1 ] || command=
        _kiv_complete options "$command"
        return
    fi
    if [ "$COMP_CWORD" -eq 1 ]; then
        _kiv_complete commands
        return
    fi
    if [[ $previous == --* ]]; then
        _kiv_complete values "$command" "$previous"
        [ "${#COMPREPLY[@]}" -eq 0 ] || return
    fi
    # Which argument this is, options and their values apart.
    local argument=0 i valued
    valued=" -o $(_kiv_words valued "$command" | tr '\n' ' ')"
    for ((i = 2; i <= COMP_CWORD; ++i)); do
        [[ ${COMP_WORDS[i]} == -* || $valued == *" ${COMP_WORDS[i - 1]} "* ]] ||
            argument=$((argument + 1))
    done
    case $command:$argument in
    list:1) _kiv_complete services ;;
    help:1) _kiv_complete commands ;;
    graph:1)
        mapfile -t COMPREPLY < <(
            compgen -W "$(_kiv_words services; _kiv_words resources)" -- "$word"
        )
        ;;
    find:* | trace:*) ;;
    compat:* | *:[2-9])
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        compopt -o filenames 2>/dev/null
        ;;
    *) _kiv_complete resources ;;
    esac
}

complete -F _kiv kiv
