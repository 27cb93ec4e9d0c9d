#!/usr/bin/env bash
# Static analysis of the programs' sources.
#   tools/check_static.sh            cppcheck of everything: seconds
#     tools/check_static.sh --tidy     also clang-tidy with the checks of .clang-tidy and the commands of build/test: some minutes on two cores
#     tools/check_static.sh --changed  the same, but clang-tidy only for files that differ from the branch main or are not committed
set -euo pipefail
cd "$(dirname "$0")/.."

folders=(base formats graph headers processing settings shell platform dialogs batch export tempoline windtable)
echo "-- cppcheck"
cppcheck --enable=warning,performance,portability --std=c++20 --language=c++ -j "$(nproc)" -I. --suppressions-list=tools/cppcheck.txt \
    --error-exitcode=1 --quiet --template=gcc "${folders[@]}"

changed=()
case "${1:-}" in
    --tidy) ;;
    --changed)
        mapfile -t changed < <({ git diff --name-only main...HEAD; git diff --name-only HEAD; git ls-files -o --exclude-standard; } |
                               grep -E '\.(cpp|h)$' | sort -u)
        [ ${#changed[@]} -gt 0 ] || { echo "-- clang-tidy: nothing has changed"; exit 0; } ;;
    *) exit 0 ;;
esac

echo "-- clang-tidy"
exec python3 -B tools/tidy.py build/test "${folders[@]}" -- "${changed[@]}"
