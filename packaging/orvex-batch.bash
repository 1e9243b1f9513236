# Completion of orvex-batch for bash: verbs, options as --help tells them, words of options, drawings.

_orvex_batch() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]} verb=${COMP_WORDS[1]}
    local IFS=$'\n'
    COMPREPLY=()
    if [[ $COMP_CWORD -eq 1 ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(orvex-batch --help 2> /dev/null |
            sed -n '/^Subcommands:/,$ s/^  \([a-z]\+\) .*/\1/p')"$'\n--help\n--version' -- "$cur")
        return
    fi
    case $prev in
        --cross | --tee) mapfile -t COMPREPLY < <(compgen -W $'closed\nopen\nmerged\nnone' -- "$cur") ;;
        --corners) mapfile -t COMPREPLY < <(compgen -W $'yes\nno' -- "$cur") ;;
        --to) mapfile -t COMPREPLY < <(compgen -W $'text\nbinary' -- "$cur") ;;
        --type) mapfile -t COMPREPLY < <(compgen -W $'svg\npng\npdf' -- "$cur") ;;
        --as) mapfile -t COMPREPLY < <(compgen -W $'lines\nblocks' -- "$cur") ;;
        --background) mapfile -t COMPREPLY < <(compgen -W $'dark\nlight\ntransparent' -- "$cur") ;;
        --paper) mapfile -t COMPREPLY < <(compgen -W $'A0\nA1\nA2\nA3\nA4' -- "$cur") ;;
        --unit) mapfile -t COMPREPLY < <(compgen -W $'mm\ncm\ndm\nm\nkm\nin\nft\nyd\nmi' -- "$cur") ;;
        --output-dir)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -d -- "$cur")
            ;;
        *)
            if [[ $cur == -* ]]; then
                mapfile -t COMPREPLY < <(compgen -W "$(orvex-batch "$verb" --help 2> /dev/null |
                    grep -o -- '^  [-a-z,]*--[a-z-]*' | sed 's/.*--/--/')" -- "$cur")
            else
                compopt -o filenames
                mapfile -t COMPREPLY < <(compgen -f -- "$cur")
            fi
            ;;
    esac
}
complete -F _orvex_batch orvex-batch
