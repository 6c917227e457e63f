# Completes the commands and options of zel, as its help lists them, and names of files.

_zel()
{
    local word=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1]}
    if [[ $COMP_CWORD == 1 ]]; then
        local commands
        commands=$(zel --help | sed -n '/^Subcommands:/,$ s/^  \([a-z][a-z-]*\) .*/\1/p')
        mapfile -t COMPREPLY < <(compgen -W "$commands --help" -- "$word")
    elif [[ $COMP_CWORD == 2 && $command == shader ]]; then
        mapfile -t COMPREPLY < <(compgen -W "export import" -- "$word")
    elif [[ $word == -* ]]; then
        local words=("$command")
        [[ $command != shader ]] || words+=("${COMP_WORDS[2]}")
        local options
        options=$(zel "${words[@]}" --help 2> /dev/null | grep -o -E '^  (-[a-z0-9],)?--[a-z-]+' |
            grep -o -E -- '--[a-z-]+')
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    else
        compopt -o filenames 2> /dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -F _zel zel
