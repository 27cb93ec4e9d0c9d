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
        --tables) COMPREPLY=($(compgen -W "json csv" -- "$word") $(compgen -f -- "$word")); return ;;
        --unit) COMPREPLY=($(compgen -W "m/s knots km/h mph" -- "$word")); return ;;
        --time-format) COMPREPLY=($(compgen -W "dmy mdy ymd epoch" -- "$word")); return ;;
        --delimiter) COMPREPLY=($(compgen -W "comma semicolon tab blanks" -- "$word")); return ;;
        --stamp) COMPREPLY=($(compgen -W "begin end" -- "$word")); return ;;
        --seasons|--location|--cell) COMPREPLY=($(compgen -f -- "$word")); return ;;
        --rings|--sector-width|--size|--jobs|--min-valid|--station|--height|--begin|--end|--step|--zone|--classes|--title|--time|--speed|--direction|--missing) return ;;
    esac
    if [[ $word == -* ]]; then
        COMPREPLY=($(compgen -W "--help --help-all --version --rose --size --format --out --min-valid --jobs --quiet --tables --palette --hatch --radius --same-scale --rings --sector-width --numbers --calm-circle --units --panel --beside-table --html --pdf --station --height --begin --end --step --zone --classes --seasons --title --location --cell --frq --keep --dry-run --time --speed --direction --unit --time-format --delimiter --missing --stamp" -- "$word"))
    else
        COMPREPLY=($(compgen -f -- "$word"))
    fi
}
complete -o filenames -F _zephyrgraph_export zephyrgraph-export
