#!/usr/bin/env bash
# Sets everything up, builds and runs all tests without a display.
#   ./test.sh --e2e    walks through the whole program instead, in a real window on a display of its own
set -euo pipefail
cd "$(dirname "$0")"

if [ "${1:-}" = --e2e ]; then tools/setup.sh --e2e; else tools/setup.sh --tests; fi
[ -f build/test/build.ninja ] || cmake -S . -B build/test -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build/test
if [ "${1:-}" = --e2e ]; then exec python3 -B tests/e2e/walk.py build/test/bin "${2:-out/e2e}"; fi
QT_QPA_PLATFORM=offscreen ctest --test-dir build/test --output-on-failure -j "$(nproc)" "$@"
