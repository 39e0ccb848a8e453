# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
#
# bash completion for corvel-print. It asks the program itself what there is to choose.

# The choices for the option $1 of the printer, out of the JSON list on standard input. An option's own keyword comes
# after its choices, and stands less far to the right.
_corvel_print_choices()
{
    awk -F'"' -v key="$1" '
        /^ +"keyword": / {
            match($0, /^ +/)
            if (RLENGTH > 8) choices = choices $4 "\n"
            else { if ($4 == key) printf "%s", choices; choices = "" }
        }'
}

_corvel_print()
{
    local cur prev words cword
    _init_completion -n = || return

    # A value that is joined to its option, as in --mode=settings.
    if [[ $cur == --*=* ]]; then
        prev=${cur%%=*} cur=${cur#*=}
    fi
    # The printer that the command line names so far.
    local printer=() i
    for ((i = 1; i < cword; i++)); do
        case ${words[i]} in
            -d | --printer | --ppd) printer=("${words[i]}" "${words[i + 1]}") ;;
            --printer=* | --ppd=*) printer=("${words[i]}") ;;
        esac
    done

    case $prev in
        -d | --printer)
            COMPREPLY=($(compgen -W "$({ echo built-in; "$1" --list-printers 2>/dev/null | cut -f1; } | sort -u)" -- "$cur"))
            return
            ;;
        --mode)
            COMPREPLY=($(compgen -W "constraint settings" -- "$cur"))
            return
            ;;
        --scaling)
            COMPREPLY=($(compgen -W "fit fill actual" -- "$cur"))
            return
            ;;
        --size)
            COMPREPLY=($(compgen -W "9x13cm 10x15cm 13x18cm 15x20cm 4x6in 5x7in 8x10in square passport wallet" -- "$cur"))
            return
            ;;
        --layout)
            COMPREPLY=($(compgen -W "single 1x2 2x2 3x3 fit contact strips pages:2 pages:4 pages:6 pages:9 pages:16 booklet" -- "$cur"))
            __ltrim_colon_completions "$cur"
            return
            ;;
        --page-set)
            COMPREPLY=($(compgen -W "all odd even" -- "$cur"))
            return
            ;;
        --caption)
            COMPREPLY=($(compgen -W "none name date both" -- "$cur"))
            return
            ;;
        --crop | --scale | --border | -n | --copies | --title | --preset | --one-pdf | --pages)
            return
            ;;
        --ppd)
            _filedir '@(ppd|PPD)'
            return
            ;;
        --preview)
            _filedir '@(png|PNG)'
            return
            ;;
        --output | --screenshot | --watch | --printed)
            _filedir -d
            return
            ;;
        -o | --option)
            if [[ $cur == *=* ]]; then
                COMPREPLY=($(compgen -W "$("$1" "${printer[@]}" --list-options --json 2>/dev/null |
                    _corvel_print_choices "${cur%%=*}")" -- "${cur#*=}"))
            else
                compopt -o nospace
                COMPREPLY=($(compgen -S = -W "$("$1" "${printer[@]}" --list-options 2>/dev/null |
                    awk 'NR > 1 { print $1 }')" -- "$cur"))
            fi
            return
            ;;
    esac
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$(_parse_help "$1")" -- "$cur"))
    else
        _filedir '@(jp?(e)g|JP?(E)G|png|PNG|tif?(f)|TIF?(F)|webp|WEBP|hei[cf]|HEI[CF]|avif|AVIF|bmp|BMP|gif|GIF|p[bgp]m|P[BGP]M|pdf|PDF)'
    fi
} && complete -F _corvel_print corvel-print
