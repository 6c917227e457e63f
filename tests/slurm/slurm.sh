#!/bin/bash
# slurm.sh TOOL EXAMPLE: runs the array job on a Slurm of one node, which dies in the middle.
# Ends with 77 where Slurm is missing or does not start.
set -euo pipefail
here=$(dirname "$0")
. "$here/common.sh"

tool=$1
example=$2
skip() {
    echo "SKIPPED: $1"
    exit 77
}
PATH=$PATH:/usr/sbin:/sbin
for program in munged slurmctld slurmd sbatch scontrol; do
    command -v $program > /dev/null || skip "$program is not installed"
done

work=$(mktemp -d)
chmod 755 "$work" # the user of the socket of munged is checked
host=$(hostname -s)
pids=()
cleanup() {
    local pid
    for pid in "${pids[@]}"; do
        kill -KILL "$pid" 2> /dev/null || true
    done
    { wait; } 2> /dev/null
    rm -rf "$work"
}
trap cleanup EXIT

start() {
    "$@" > "$work/$1.out" 2>&1 &
    pids+=($!)
}

start_cluster() {
    local port=$((20000 + $$ % 10000)) user
    user=$(id -un)
    mkdir "$work/state" "$work/spool"
    head -c 1024 /dev/urandom > "$work/munge.key"
    chmod 600 "$work/munge.key"
    cat > "$work/slurm.conf" <<CONF
ClusterName=zel
SlurmctldHost=$host(127.0.0.1)
AuthType=auth/munge
# A job comes back as soon as the credentials of its last start are worth nothing.
AuthInfo=socket=$work/munge.sock,cred_expire=5
SlurmUser=$user
SlurmdUser=$user
SlurmctldPort=$port
SlurmdPort=$((port + 1))
StateSaveLocation=$work/state
SlurmdSpoolDir=$work/spool
SlurmctldPidFile=$work/slurmctld.pid
SlurmdPidFile=$work/slurmd.pid
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
MailProg=/bin/true
SchedulerParameters=sched_interval=1,bf_interval=1
ReturnToService=2
NodeName=$host NodeAddr=127.0.0.1 CPUs=2 State=UNKNOWN
PartitionName=all Nodes=ALL Default=YES MaxTime=INFINITE State=UP
CONF
    export SLURM_CONF=$work/slurm.conf
    start munged --foreground --force --socket="$work/munge.sock" --key-file="$work/munge.key" \
        --log-file="$work/munged.log" --pid-file="$work/munged.pid" --seed-file="$work/munge.seed"
    await 10 "munged" test -S "$work/munge.sock" || return 1
    start slurmctld -D
    start slurmd -D
    node=${pids[-1]}
    await 30 "the node" eval 'sinfo -h -o %T 2> /dev/null | grep -q idle'
}

# The node dies: its daemon, what that started for each job, and the jobs. The daemons go first, as
# one that outlives its job tells that the job has failed, and a failed job does not come back.
kill_node() {
    local job pid parent daemons=() victims=()
    for job in $(squeue -h -r -t R -o %A); do
        for pid in $(scontrol listpids "$job" | awk 'NR > 1 { print $1 }'); do
            victims+=("$pid")
            parent=$(awk '/^PPid/ { print $2 }' "/proc/$pid/status") || continue
            [[ $(< "/proc/$parent/comm") != slurmstepd ]] || daemons+=("$parent")
        done
    done 2> /dev/null # a process may have ended by now
    mapfile -t daemons < <(printf '%s\n' "${daemons[@]}" | sort -u)
    [[ ${#daemons[@]} == 2 ]] || { echo "FAILED: not both jobs are found"; exit 1; }
    kill -KILL "$node" "${daemons[@]}"
    for pid in "${victims[@]}"; do
        kill -KILL "$pid" 2> /dev/null || [[ ! -e /proc/$pid ]] ||
            { echo "FAILED: process $pid of a job lives on"; exit 1; }
    done
    { wait "$node" || true; } 2> /dev/null
    # As a health check does; the silence of the node would tell in some 30 s.
    scontrol update "nodename=$host" state=down reason=dead
}

# The node comes back, and with it the jobs that were lost.
restart_node() {
    start slurmd -D -b # -b: the node was started anew
    scontrol update "nodename=$host" state=resume
}

start_cluster || { tail -n 5 "$work"/*.out; skip "Slurm does not start here"; }
make_scenes "$work/scenes"
make_tool "$tool" "$work"
export ZEL=$work/zel
sbatch --array=1-2 --cpus-per-task=1 --output="$work/%A_%a.txt" \
    "$example/check.sbatch" "$work/scenes" "$work" > /dev/null
logs=("$work"/logs/{1,2}-of-2.log)
await 60 "the middle of both shards" has_lines 50 "${logs[@]}"
rm "$work/hold"
kill_node
nb=$(nb_noted "${logs[@]}")
[[ $nb -lt 3002 ]] || { echo "FAILED: the jobs were over before the node died"; exit 1; }

restart_node
finished() { [[ -z $(squeue -h) ]]; }
await 90 "the end of the jobs" finished || { squeue; tail "$work"/slurm*.out; exit 1; }
ls "$work"/results/*-1.jsonl > /dev/null # of a second attempt
check_results "$example" "$work" "$work/scenes"
echo "went on from $nb of 3002 files"
