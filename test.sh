#!/usr/bin/env bash
# Sets everything up, builds and runs all tests without a display.
set -euo pipefail
cd "$(dirname "$0")"

tools/setup.sh --tests
[ -f build/test/build.ninja ] || cmake -S . -B build/test -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build/test
QT_QPA_PLATFORM=offscreen ctest --test-dir build/test --output-on-failure -j "$(nproc)" "$@"
