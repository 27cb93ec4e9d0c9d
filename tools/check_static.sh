#!/usr/bin/env bash
# Static analysis of the programs' sources.
#   tools/check_static.sh            cppcheck of everything: seconds
#   tools/check_static.sh --tidy     and clang-tidy with the checks of .clang-tidy, on what ./test.sh has built: some ten minutes on two cores
set -euo pipefail
cd "$(dirname "$0")/.."

folders=(base graph processing shell platform dialogs batch export tempoline)
echo "-- cppcheck"
cppcheck --enable=warning,performance,portability --std=c++20 --language=c++ -j "$(nproc)" -I. --suppressions-list=tools/cppcheck.txt \
    --error-exitcode=1 --quiet --template=gcc "${folders[@]}"
[ "${1:-}" = --tidy ] || exit 0

echo "-- clang-tidy"
pattern=$(printf '|/%s/.*\\.cpp$' "${folders[@]}")
# The commands are those of another compiler, whose warning options clang does not all know.
run-clang-tidy-14 -quiet -j "$(nproc)" -extra-arg=-Wno-unknown-warning-option -p build/test "^$PWD(${pattern:1})" >build/tidy.log 2>&1 ||
    { grep -E "(warning|error):" build/tidy.log | sort -u; exit 1; }
