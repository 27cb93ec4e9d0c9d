# Completion of zephyrgraph-export for bash: source this file, or put it into a completions directory.
_zephyrgraph_export() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}
    case $before in
        --format) COMPREPLY=($(compgen -W "png bmp svg pdf" -- "$word")); return ;;
        --rose) COMPREPLY=($(compgen -W "all 1" -- "$word")); return ;;
        --out) COMPREPLY=($(compgen -d -- "$word")); return ;;
        --palette) COMPREPLY=($(compgen -W "factory viridis cividis okabe-ito greys" -- "$word") $(compgen -f -- "$word")); return ;;
        --radius|--panel) COMPREPLY=($(compgen -W "auto" -- "$word")); return ;;
        --units) COMPREPLY=($(compgen -W "m/s knots km/h mph" -- "$word")); return ;;
        --html|--pdf) COMPREPLY=($(compgen -f -- "$word")); return ;;
        --rings|--sector-width|--size|--jobs|--min-valid) return ;;
    esac
    if [[ $word == -* ]]; then
        COMPREPLY=($(compgen -W "--help --version --rose --size --format --out --min-valid --jobs --quiet --tables --palette --hatch --radius --same-scale --rings --sector-width --numbers --calm-circle --units --panel --beside-table --html --pdf" -- "$word"))
    else
        COMPREPLY=($(compgen -d -- "$word") $(compgen -f -X '!*.[fF][rR][qQ]' -- "$word"))
    fi
}
complete -o filenames -F _zephyrgraph_export zephyrgraph-export
