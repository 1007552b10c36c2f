# What bash offers behind zevlin-cards: commands, options, cards and folders.
_zevlin_cards()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} options
    COMPREPLY=()
    if [ "$before" = --files-from ]; then
        compopt -o default 2>/dev/null
        return
    fi
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "text diff check --help --version" -- "$word")
        return
    fi
    case ${COMP_WORDS[1]} in
        text) options="--json --files-from --null --help" ;;
        diff) options="--json --help" ;;
        check) options="--files-from --null --help" ;;
        *) return ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
        return
    fi
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -X "!*.[zZ][eE][vV]" -- "$word"; compgen -d -- "$word")
}
complete -F _zevlin_cards zevlin-cards
