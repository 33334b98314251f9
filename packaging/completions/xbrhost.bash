# Completion of xbrhost for bash. Never opens a browser, the keyring or the network.

# The command that was typed; "window" is meant when there is none.
_xbrhost_command() {
    local word skip=
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [[ $skip ]]; then
            [[ $word == = ]] || skip=
        elif [[ $word == --module ]]; then
            skip=yes
        elif [[ $word != -* ]]; then
            printf '%s' "$word"
            return
        fi
    done
    printf none
}

# Folders, and files whose names end in one of the words, in any case.
_xbrhost_files() {
    local name ending
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -d -- "$cur")
    while IFS= read -r name; do
        for ending in "$@"; do
            [[ ! -d $name && ${name,,} == *".$ending" ]] && COMPREPLY+=("$name")
        done
    done < <(compgen -f -- "$cur")
}

_xbrhost_genres() {
    local name typed=${cur//[\\\"\']/}
    compopt -o filenames # the shell quotes what needs it
    while IFS= read -r name; do
        [[ ${name,,} == "${typed,,}"* ]] && COMPREPLY+=("$name")
    done < <(xbrhost genres --quiet 2>/dev/null)
}

_xbrhost() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}
    local commands="window publish genres sign-in sign-out status open-url help"
    local options="--help --version --quiet --verbose --json --module" command
    COMPREPLY=()
    [[ $cur == = ]] && cur=
    [[ $prev == = ]] && prev=${COMP_WORDS[COMP_CWORD - 2]}
    command=$(_xbrhost_command)
    case $prev in
    --module) _xbrhost_files so; return ;;
    --release) _xbrhost_files json; return ;;
    --genre) _xbrhost_genres; return ;;
    --album-title | --album-artist | --title | --artist | --track-number | --as) return ;;
    esac
    case $command in
    none | window) options="--help --version --module" ;;
    publish)
        options+=" --album --album-title --album-artist --genre --title --artist --track-number --release"
        options+=" --recursive --dry-run --skip-unreadable --skip-incomplete --again --as"
        ;;
    esac
    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
    else
        case $command in
        none | help) mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$cur") ;;
        window | publish) _xbrhost_files wav w64 aif aiff aifc flac mp3 ogg oga caf au ;;
        genres) _xbrhost_genres ;;
        esac
    fi
    return 0
} 2>/dev/null

complete -F _xbrhost xbrhost
