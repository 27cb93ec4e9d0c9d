#!/usr/bin/env bash
# Draws the roses of the files whose names come on standard input, one a line, on all cores of this machine.
#     ls raw/* | pictures.sh DIRECTORY [OPTION ...]     the options are those of zephyrgraph-export
# ZEPHYRGRAPH_EXPORT names the program if it is not in the PATH. A file that fails is told; the others are drawn.
set -euo pipefail

export ZEPHYRGRAPH_EXPORT=${ZEPHYRGRAPH_EXPORT:-zephyrgraph-export}
directory=$1
shift

if command -v parallel >/dev/null 2>&1; then
    parallel "$ZEPHYRGRAPH_EXPORT" {} --quiet --out "$directory" "$@"
else
    tr '\n' '\0' | xargs -0 -I{} -P "$(nproc)" "$ZEPHYRGRAPH_EXPORT" {} --quiet --out "$directory" "$@"
fi
