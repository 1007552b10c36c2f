# What bash offers behind zevlin-cards: commands, options, cards and folders.
_zevlin_cards()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} options
    local making="--output --layout --stamp --newer --jobs --quiet --files-from --null --help"
    COMPREPLY=()
    case $before in
        --files-from | --layout | --together)
            compopt -o default 2>/dev/null
            return ;;
        -o | --output)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -d -- "$word")
            return ;;
        --paper)
            mapfile -t COMPREPLY < <(compgen -W "letter a4" -- "$word")
            return ;;
        --type)
            mapfile -t COMPREPLY < <(compgen -W "png gif jpg bmp" -- "$word")
            return ;;
        -j | --jobs | --width) return ;;
    esac
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "pdf image text diff check --help --version" -- "$word")
        return
    fi
    case ${COMP_WORDS[1]} in
        pdf) options="--partner --both --paper --black --together $making" ;;
        image) options="--type --width $making" ;;
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
