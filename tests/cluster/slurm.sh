#!/usr/bin/env bash
# The documented array job with a real Slurm: a cluster of one node, started here on the loopback interface and stopped at the end.
#   tests/cluster/slurm.sh PROCESSOR
# Three parts of a year and the dependent merge give the result of one run over all; if a task is killed the merge
# does not run, and submitting the same again succeeds.
set -euo pipefail

root=$(cd "$(dirname "$0")/../.." && pwd)
TEMPOLINE=$(realpath "$1")
export TEMPOLINE

for program in slurmctld slurmd munged sbatch; do
    PATH=$PATH:/usr/sbin command -v $program >/dev/null 2>&1 && continue
    echo "tests/cluster/slurm.sh: skipped: $program is not there, and its package could not be installed" >&2
    exit 0
done
PATH=$PATH:/usr/sbin

work=$(mktemp -d "${TMPDIR:-/tmp}/zg_slurm.XXXXXX")
chmod 755 "$work"
daemons=()
feeder=

stop() {
    local status=$?
    set +e
    [ -z "$feeder" ] || kill "$feeder" 2>/dev/null
    scancel --user="$(id -un)" >/dev/null 2>&1
    # Each running task has a socket here.
    for ((tenths = 0; tenths < 100; ++tenths)); do
        compgen -G "$work/spool/*_*.*" >/dev/null || break
        sleep 0.1
    done
    for ((i = ${#daemons[@]} - 1; i >= 0; --i)); do
        kill "${daemons[i]}" 2>/dev/null
        for ((tenths = 0; tenths < 50; ++tenths)); do
            kill -0 "${daemons[i]}" 2>/dev/null || break
            sleep 0.1
        done
        kill -9 "${daemons[i]}" 2>/dev/null
    done
    wait 2>/dev/null
    if [ $status -ne 0 ]; then
        echo "tests/cluster/slurm.sh: what the cluster said:" >&2
        tail -n 20 "$work"/log/*.log >&2
    fi
    rm -rf "$work"
    exit $status
}
trap stop EXIT
trap 'exit 130' INT TERM

fail() {
    echo "tests/cluster/slurm.sh: $*" >&2
    exit 1
}

# Waits until the command succeeds.
await() {
    local what=$1
    shift
    for ((tenths = 0; tenths < 300; ++tenths)); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    fail "after 30 seconds still no $what"
}

free_port() {
    python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])'
}

start_cluster() {
    mkdir -p "$work"/{log,state,spool,run}
    local host user
    host=$(hostname -s)
    user=$(id -un)
    head -c 1024 /dev/urandom >"$work/run/key"
    chmod 400 "$work/run/key"
    cat >"$work/slurm.conf" <<END
ClusterName=checks
SlurmctldHost=$host(127.0.0.1)
SlurmctldPort=$(free_port)
SlurmdPort=$(free_port)
SlurmUser=$user
SlurmdUser=$user
AuthType=auth/munge
AuthInfo=socket=$work/run/munge.socket
CredType=cred/munge
StateSaveLocation=$work/state
SlurmdSpoolDir=$work/spool
SlurmctldPidFile=$work/run/slurmctld.pid
SlurmdPidFile=$work/run/slurmd.pid
SlurmctldLogFile=$work/log/slurmctld.log
SlurmdLogFile=$work/log/slurmd.log
ProctrackType=proctrack/pgid
TaskPlugin=task/none
JobAcctGatherType=jobacct_gather/none
MpiDefault=none
SchedulerType=sched/builtin
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
ReturnToService=2
KillWait=2
MinJobAge=600
NodeName=$host NodeAddr=127.0.0.1 CPUs=3 Boards=1 SocketsPerBoard=1 CoresPerSocket=3 ThreadsPerCore=1 RealMemory=1000 State=UNKNOWN
PartitionName=checks Nodes=$host Default=YES MaxTime=INFINITE State=UP
SlurmdParameters=config_overrides
END
    echo "CgroupPlugin=cgroup/v1" >"$work/cgroup.conf"
    export SLURM_CONF=$work/slurm.conf
    munged --force --foreground --key-file="$work/run/key" --socket="$work/run/munge.socket" --pid-file="$work/run/munged.pid" \
        --log-file="$work/log/munged.log" --seed-file="$work/run/seed" >"$work/log/munged.out.log" 2>&1 &
    daemons+=($!)
    await "munge socket" test -S "$work/run/munge.socket"
    slurmctld -D -i >"$work/log/slurmctld.out.log" 2>&1 &
    daemons+=($!)
    slurmd -D -N "$host" >"$work/log/slurmd.out.log" 2>&1 &
    daemons+=($!)
    await "idle node" bash -c "sinfo -h -o %t | grep -q idle"
}

is_over() {
    [ -z "$(squeue -h -j "$1" -t PENDING,RUNNING,COMPLETING,CONFIGURING,SUSPENDED 2>/dev/null)" ]
}
state_of() { scontrol show job "$1" | sed -n 's/.*JobState=\([A-Z]*\) Reason=\([A-Za-z]*\).*/\1 \2/p' | sort -u; }
never_starts() { [ "$(state_of "$1")" = "PENDING DependencyNeverSatisfied" ]; }

# The two commands of the documentation.
submit() {
    array=$(sbatch --parsable "$root/data/cluster/array.sbatch")
    merge=$(sbatch --parsable --dependency=afterok:"$array" --wrap "$TEMPOLINE --merge --out all part*.tab")
}

# The dependent merge, and with it all tasks, have completed, and its result equals that of one run over all.
check_merge() {
    await "end of the merge" is_over "$merge"
    [ "$(state_of "$merge")" = "COMPLETED None" ] || fail "the merge: $(state_of "$merge"); $(cat slurm-*.out)"
    PYTHONPATH=$root/tests/tempoline python3 -B -c '
import pathlib, check_joined
check_joined.same_results(pathlib.Path("."), "all", "whole")'
    rm all.frq all.tab part*.frq part*.tab
}

start_cluster
mkdir "$work/jobs"
cd "$work/jobs"
PYTHONPATH=$root/tests/tempoline python3 -B -c '
import pathlib, check_joined
controls = check_joined.parts_of_year(pathlib.Path("."), check_joined.BOUNDS)
pathlib.Path("controls.txt").write_text("".join(name + "\n" for name in controls))'
"$TEMPOLINE" whole.inp

echo "== three parts of a year, and the merge that depends on them"
submit
check_merge

echo "== one task is killed while it reads"
sed -i 's/! METINP = a.sfc !/! METINP = held.sfc !/' part1.inp
mkfifo held.sfc
(
    exec 9>held.sfc  # continues when the processor has opened it
    touch opened
    exec sleep 60
) &
feeder=$!
submit
await "processor that reads" test -e opened
scancel --batch --signal=KILL "${array}_2"
await "end of all tasks" is_over "$array"
kill "$feeder"
feeder=
await "refusal of the merge" never_starts "$merge"
for name in all.frq all.tab part1.frq part1.tab; do
    [ ! -e $name ] || fail "$name is there although a task was killed"
done
[ -e part0.frq ] && [ -e part2.frq ] || fail "the other tasks have no results"
scancel "$merge"

echo "== submitted again, with the data in place"
rm held.sfc
cp a.sfc held.sfc
submit
check_merge
echo "== the cluster's results are those of one run"
