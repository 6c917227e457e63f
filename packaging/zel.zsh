#compdef zel
# Completes the commands and options of zel, as its help lists them, and names of files.

local -a found
if (( CURRENT == 2 )); then
    found=(${(f)"$(zel --help | sed -n '/^Subcommands:/,$ s/^  \([a-z][a-z-]*\) .*/\1/p')"})
    compadd -- $found --help
elif (( CURRENT == 3 )) && [[ $words[2] == shader ]]; then
    compadd -- export import
elif [[ $words[CURRENT] == -* ]]; then
    local -a called=($words[2])
    [[ $words[2] != shader ]] || called+=($words[3])
    found=(${(f)"$(zel $called --help 2> /dev/null | grep -o -E '^  (-[a-z0-9],)?--[a-z-]+' |
        grep -o -E -- '--[a-z-]+')"})
    compadd -- $found
else
    _files
fi
