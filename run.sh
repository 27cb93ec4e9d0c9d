#!/usr/bin/env bash
# Sets everything up, builds the program and starts it with the samples at hand. Without a display it draws every
# rose of the sample file into out/.
set -euo pipefail
cd "$(dirname "$0")"

tools/setup.sh
[ -f build/run/build.ninja ] || cmake --preset run --log-level=WARNING
cmake --build --preset run

sample=data/samples/LOVETT_1988.frq
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    echo "Starting Zephyrgraph. Samples to open: $(pwd)/data/samples"
    exec build/run/bin/zephyrgraph "$@"
fi
echo "There is no display: drawing every rose of $sample into out/ instead."
mkdir -p out
build/run/bin/zephyrgraph-export "$sample" --rose all --out out
ls out
