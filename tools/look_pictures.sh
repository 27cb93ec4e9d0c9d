#!/usr/bin/env bash
# Draws the pictures of docs/looks.md anew, by the companion of what ./test.sh has built (or of the directory that is given).
set -euo pipefail
cd "$(dirname "$0")/.."

companion=${1:-build/test/bin}/zephyrgraph-export
sample=data/samples/LOVETT_1988.frq
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

look() {
    local name=$1 picture=$2
    shift 2
    "$companion" "$sample" --out "$scratch" "$@" >/dev/null
    cp "$scratch/$picture" "docs/pictures/look_$name.png"
}

look cividis LOVETT_1988_01.png --rose 1 --palette cividis --radius auto
look hatch LOVETT_1988_01.png --rose 1 --palette greys --hatch --radius auto --sector-width 15
look numbers LOVETT_1988_01.png --rose 1 --radius 15 --sector-width 18 --numbers --calm-circle --units knots --palette okabe-ito
look panel panel_01.png --panel 3x3 --radius auto --palette viridis
look table LOVETT_1988_01.png --rose 1 --beside-table --radius auto --palette viridis
