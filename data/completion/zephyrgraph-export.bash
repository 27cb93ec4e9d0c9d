# Completion of zephyrgraph-export for bash: source this file, or put it into a completions directory.
_zephyrgraph_export() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}
    case $before in
        --format) COMPREPLY=($(compgen -W "png bmp svg pdf" -- "$word")); return ;;
        --rose) COMPREPLY=($(compgen -W "all 1" -- "$word")); return ;;
        --out) COMPREPLY=($(compgen -d -- "$word")); return ;;
        --size|--jobs|--min-valid) return ;;
    esac
    if [[ $word == -* ]]; then
        COMPREPLY=($(compgen -W "--help --version --rose --size --format --out --min-valid --jobs --quiet --tables" -- "$word"))
    else
        COMPREPLY=($(compgen -d -- "$word") $(compgen -f -X '!*.[fF][rR][qQ]' -- "$word"))
    fi
}
complete -o filenames -F _zephyrgraph_export zephyrgraph-export
