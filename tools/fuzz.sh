#!/usr/bin/env bash
# Builds the fuzz program and runs every target for some seconds, one per core. New inputs go to build/fuzz-inputs, never into the corpus.
#     tools/fuzz.sh [SECONDS] [TARGET ...]     by default 10 seconds of all targets
# ZG_FUZZ_SEED=N begins the search at a place of one's own choice, else each run begins elsewhere.
set -euo pipefail
cd "$(dirname "$0")/.."

program=build/fuzz/bin/zg_fuzz
[ -f build/fuzz/build.ninja ] || cmake --preset fuzz --log-level=WARNING
cmake --build --preset fuzz
seconds=${1:-10}
[ $# -gt 0 ] && shift
[ $# -gt 0 ] && targets=("$@") || mapfile -t targets < <(ls tests/fuzz/corpus)

one() {
    local scratch=build/fuzz-inputs/$1
    mkdir -p "$scratch"
    "$program" "$1" -seed="${ZG_FUZZ_SEED:-0}" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=4096 -print_final_stats=1 "$scratch" "tests/fuzz/corpus/$1" \
        >"$scratch.log" 2>&1 || { echo "$1: found something"; tail -40 "$scratch.log"; return 1; }
    echo "$1: $(sed -n 's/.*number_of_executed_units: *//p' "$scratch.log") inputs"
}
export -f one
export program seconds
printf '%s\0' "${targets[@]}" | xargs -0 -n 1 -P "$(nproc)" bash -c 'one "$1"' _
