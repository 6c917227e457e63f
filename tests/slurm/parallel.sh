#!/bin/bash
# parallel.sh TOOL EXAMPLE: runs the example by GNU parallel, kills it in the middle and goes on.
# Ends with 77 where GNU parallel is missing.
set -euo pipefail
here=$(dirname "$0")
. "$here/common.sh"

tool=$1
example=$2
if ! parallel --version 2> /dev/null | grep -q '^GNU parallel'; then
    echo "SKIPPED: GNU parallel is not installed"
    exit 77
fi
work=$(mktemp -d)
cleanup() {
    kill_run
    rm -rf "$work"
}
# GNU parallel and all that it started.
kill_run() {
    [[ -z $run ]] || kill -KILL $(tree_of "$run") 2> /dev/null || true
    run=
}
run=
trap cleanup EXIT
export HOME=$work # where GNU parallel keeps notes of its own
make_scenes "$work/scenes"
make_tool "$tool" "$work"
export ZEL=$work/zel

"$example/check-parallel" "$work/scenes" "$work" 3 > "$work/out" 2>&1 &
run=$!
await 60 "the middle of a shard" has_lines 50 "$work/logs/1-of-3.log"
rm "$work/hold"
kill_run
{ wait; } 2> /dev/null
nb=$(nb_noted "$work"/logs/*.log)
[[ $nb -lt 3002 ]] || { echo "FAILED: the run was over before it was killed"; exit 1; }

"$example/check-parallel" "$work/scenes" "$work" 3 2>> "$work/out" || { cat "$work/out"; exit 1; }
check_results "$example" "$work" "$work/scenes"
echo "went on from $nb of 3002 files"
