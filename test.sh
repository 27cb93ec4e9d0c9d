#!/usr/bin/env bash
# Sets everything up, builds and runs all tests without a display.
#   ./test.sh                    everything
#   ./test.sh graph/render       builds and runs the tests of one folder of tests/
#     ./test.sh -L fast            options go to ctest: here the tests that need no toolkit
#     ./test.sh --e2e [DIRECTORY]  walks through the whole program instead, in a real window on a separate display
set -euo pipefail
cd "$(dirname "$0")"

folder=
target=all
case "${1:-}" in
    --e2e) tools/setup.sh --e2e ;;
    "" | -*) tools/setup.sh --tests ;;
    *)
        folder=${1%/}
        folder=tests/${folder#tests/}
        target=$folder/all
        [ -f "$folder/CMakeLists.txt" ] || { echo "./test.sh: there are no tests in $folder" >&2; exit 2; }
        shift
        tools/setup.sh --tests ;;
esac
[ -f build/test/build.ninja ] || cmake --preset test --log-level=WARNING
cmake --build --preset test --target "$target"
if [ "${1:-}" = --e2e ]; then exec python3 -B tests/e2e/walk.py build/test/bin "${2:-out/e2e}"; fi

rm -rf build/test/Testing/cases
# One more than there are cores: some tests wait for other programs.
QT_QPA_PLATFORM=offscreen ctest --test-dir "build/test/$folder" --output-on-failure -j "$(($(nproc) + 1))" "$@"
cases=$(cat build/test/Testing/cases/*.xml 2>/dev/null | sed -n 's/^<testsuites tests="\([0-9]*\)".*/\1/p' | paste -sd+ -)
echo "The test programs among them ran $((${cases:-0})) cases."
