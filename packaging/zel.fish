# Completes the commands and options of zel, as its help lists them, and names of files.

function __zel_commands
    zel --help | sed -n '/^Subcommands:/,$ s/^  \([a-z][a-z-]*\)  *\(.*\)/\1\t\2/p'
end

function __zel_options
    set -l words (commandline -opc)[2..-1]
    set -l called $words[1]
    test "$called" = shader; and set called $words[1..2]
    zel $called --help 2>/dev/null | grep -o -E '^  (-[a-z0-9],)?--[a-z-]+' | grep -o -E -- '--[a-z-]+'
end

complete -c zel -f -n __fish_use_subcommand -a '(__zel_commands)'
complete -c zel -f -n '__fish_seen_subcommand_from shader; and test (count (commandline -opc)) = 2' -a 'export import'
complete -c zel -n 'string match -q -- "-*" (commandline -ct)' -a '(__zel_options)'
