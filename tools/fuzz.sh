#!/usr/bin/env bash
# Runs every fuzz target for some seconds, one per core, as built by ./test.sh. New inputs go to build/fuzz-inputs, never into the corpus.
#     tools/fuzz.sh [SECONDS] [TARGET ...]     by default 10 seconds of all targets
set -euo pipefail
cd "$(dirname "$0")/.."

program=build/test/fuzz/bin/zg_fuzz
[ -x "$program" ] || { echo "tools/fuzz.sh: $program is missing; ./test.sh builds it" >&2; exit 1; }
seconds=${1:-10}
[ $# -gt 0 ] && shift
[ $# -gt 0 ] && targets=("$@") || mapfile -t targets < <(ls tests/fuzz/corpus)

one() {
    local scratch=build/fuzz-inputs/$1
    mkdir -p "$scratch"
    "$program" "$1" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=4096 -print_final_stats=1 "$scratch" "tests/fuzz/corpus/$1" \
        >"$scratch.log" 2>&1 || { echo "$1: found something"; tail -40 "$scratch.log"; return 1; }
    echo "$1: $(sed -n 's/.*number_of_executed_units: *//p' "$scratch.log") inputs"
}
export -f one
export program seconds
printf '%s\0' "${targets[@]}" | xargs -0 -n 1 -P "$(nproc)" bash -c 'one "$1"' _
