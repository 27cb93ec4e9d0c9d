#!/usr/bin/env bash
# Builds the programs by clang, with warnings as errors, and compares what they make of the samples with what the programs of another build make.
#     tools/check_clang.sh [BUILD]     by default build/test
set -euo pipefail
cd "$(dirname "$0")/.."
other=${1:-build/test}
out=build/clang/check

cmake --preset clang --log-level=WARNING
cmake --build --preset clang
rm -rf "$out"
mkdir -p "$out"
export QT_QPA_PLATFORM=offscreen
raw=(LOVETT.SFC AERMET2.PFL valley_surf.dat valley_up.dat valley_monitor.csv valley_series.tsf)
# drawn BUILD NAME: a rose of each sample, and the tables of those that are no FRQ files
drawn() {
    "$1/bin/zephyrgraph-export" data/samples/*.frq "${raw[@]/#/data/samples/}" --format svg --quiet --out "$out/$2" >"$out/$2.log" 2>&1 &&
        "$1/bin/zephyrgraph-export" "${raw[@]/#/data/samples/}" --tables csv --quiet >"$out/$2.csv" 2>>"$out/$2.log" ||
        { cat "$out/$2.log" >&2; return 1; }
}
drawn build/clang clang
drawn "$other" other
diff -r "$out/clang" "$out/other"
cmp "$out/clang.csv" "$out/other.csv"
echo "$(find "$out/clang" -type f | wc -l) roses and $(wc -l <"$out/clang.csv") lines of tables are the same by both compilers"
