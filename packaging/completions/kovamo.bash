# Completes kovamo's commands, their options, what those take and the names of copies.
_kovamo() {
    local cur prev words cword command=
    _init_completion || return
    ((cword > 1)) && command=${words[1]}
    [[ $command == -* ]] && command=
    case $prev in
        --appearance) COMPREPLY=($(compgen -W 'light dark' -- "$cur")) ;;
        --frame) COMPREPLY=($(compgen -W 'current 3 12' -- "$cur")) ;;
        --format)
            local formats
            case $command in
                export) formats='csv json ledger' ;;
                import) formats='csv json' ;;
                list) formats='text csv json' ;;
                *) formats='text json' ;;
            esac
            COMPREPLY=($(compgen -W "$formats" -- "$cur"))
            ;;
        --store) _filedir sqlite ;;
        --pictures) _filedir -d ;;
        --columns | --date-format | --emoji) ;;
        *) false ;;
    esac && return
    if [[ $cur == -* ]]; then
        local options='--store --help'
        case $command in
            export) options+=' --format --frame' ;;
            import) options+=' --format --dry-run --skip-bad --columns --date-format --emoji' ;;
            balance | list) options+=' --format --frame' ;;
            check | copies | restore) ;;
            *) options='--new-transaction --all-transactions --demo --appearance --pictures --version --help' ;;
        esac
        COMPREPLY=($(compgen -W "$options" -- "$cur"))
        return
    fi
    case $command in
        '')
            COMPREPLY=($(compgen -W 'export import balance list check copies restore' -- "$cur"))
            _filedir '@(csv|tsv|json|jsonl|ndjson)'
            ;;
        export) _filedir '@(csv|json|ledger|journal)' ;;
        import) _filedir '@(csv|tsv|txt|json|jsonl|ndjson)' ;;
        restore)
            COMPREPLY=($(compgen -W "$(kovamo copies 2>/dev/null | cut -d ' ' -f 1)" -- "$cur"))
            _filedir sqlite
            ;;
    esac
} && complete -F _kovamo kovamo
