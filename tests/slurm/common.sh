# What the tests of the cluster examples share.

# make_scenes FOLDER: 3002 documents, one with findings and one unreadable.
make_scenes() {
    local data folder i
    data=$(dirname "${BASH_SOURCE[0]}")/../data/samples
    mkdir -p "$1/000"
    for ((i = 0; i < 100; ++i)); do
        cp "$data/minimal.zel" "$1/000/$i.zel"
    done
    for ((i = 1; i < 30; ++i)); do
        printf -v folder '%03d' "$i"
        cp -r "$1/000" "$1/$folder"
    done
    cp "$data/legacy.zel" "$1/findings.zel"
    # With a character that some readers take for the end of a line.
    echo "no document" > "$1"/no$'\xe2\x80\xa8'text.zel
}

# make_tool TOOL FOLDER: makes FOLDER/zel, a stand-in for the tool that takes what the examples give
# to it. As long as there is a file FOLDER/hold it gets a list of some of the files and waits for
# more of it, for ever, so that there is time to kill it.
make_tool() {
    touch "$2/hold"
    cat > "$2/zel" <<TOOL
#!/bin/bash
# check --json [OPTION]... --recursive SCENES
[[ -e "$2/hold" ]] || exec "$1" "\$@"
exec "$1" "\${@:1:\$#-2}" - \
    < <(find "\${!#}" -name '*.zel' | head -n 1500; exec tail --pid=\$\$ -f /dev/null)
TOOL
    chmod 755 "$2/zel"
}

# await SECONDS WHAT COMMAND...: fails unless the command succeeds in that time.
await() {
    local end=$((SECONDS + $1)) what=$2
    shift 2
    until "$@"; do
        if [[ $SECONDS -ge $end ]]; then
            echo "FAILED: $what does not come"
            return 1
        fi
        sleep 0.05
    done
}

# has_lines NUMBER FILE...: whether each file has as many.
has_lines() {
    local nb=$1 file
    shift
    for file in "$@"; do
        [[ -f $file && $(wc -l < "$file") -ge $nb ]] || return 1
    done
}

# tree_of PID: the process and all below it.
tree_of() {
    local child
    echo "$1"
    for child in $(cat "/proc/$1/task/"*/children 2> /dev/null); do
        tree_of "$child"
    done
}

# nb_noted FILE...: how many files the logs have, without their heads.
nb_noted() {
    cat "$@" | grep -c $'\t' || true
}

# check_results EXAMPLE WORK SCENES: whether the shards together have told what one run tells.
check_results() {
    "$1/merge" "$2" | LC_ALL=C sort > "$2/merged"
    "$ZEL" check --json --shard 1/1 --recursive "$3" 2> /dev/null | LC_ALL=C sort > "$2/expected" || true
    [[ $(wc -l < "$2/expected") == 3002 ]] || { echo "FAILED: not all files are expected"; return 1; }
    cmp "$2/merged" "$2/expected" || return 1
    [[ $(nb_noted "$2"/logs/*.log) == 3002 ]] || { echo "FAILED: a file is noted twice"; return 1; }
}
