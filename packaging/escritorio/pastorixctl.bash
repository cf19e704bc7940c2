# Completion of pastorixctl: commands and options are read from its own help.
_pastorixctl() {
    local actual=${COMP_WORDS[COMP_CWORD]} palabras
    if [ "$COMP_CWORD" -eq 1 ]; then
        palabras=$(pastorixctl --help 2> /dev/null | sed -nE 's/^  ([^ ]+).*/\1/p')
    elif [[ $actual == -* ]]; then
        palabras=$(pastorixctl "${COMP_WORDS[1]}" --help 2> /dev/null | grep -oE -- '--[[:alnum:]-]+')
    fi
    if [ "${COMP_WORDS[1]}" = informe ] && [ "$COMP_CWORD" -gt 1 ]; then # its reports, and the options of each
        palabras+=" $(pastorixctl informe --lista 2> /dev/null | grep -oE '^[^ :]+|--[^] ]+')"
    fi
    if [ -n "$palabras" ]; then
        mapfile -t COMPREPLY < <(compgen -W "$palabras" -- "$actual")
    else
        compopt -o default
        COMPREPLY=()
    fi
}
complete -F _pastorixctl pastorixctl
