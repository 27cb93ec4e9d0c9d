#!/usr/bin/env bash
# Checks the portable folder for Windows in a fresh Windows of Wine: the programs started, a file opened, a rose made of raw data. Needs an X server for the window: one of its own is started where Xvfb is installed and there is none.
#     tools/check_windows_packages.sh [BUILD]   the package in that build directory; by default build/windows
set -euo pipefail
cd "$(dirname "$0")/.."
tree=$PWD
build=${1:-build/windows}
portable=$(ls "$tree/$build"/zephyrgraph-*-windows-*.zip)

work=$tree/$build/package-check
rm -rf "$work"
mkdir -p "$work"
export ZG_WINE_PREFIX=$work/wine
wine() { "$tree/tools/wine.sh" "$@"; }
fail() { echo "check_windows_packages: $*" >&2; exit 1; }

if [ -z "${DISPLAY:-}" ]; then
    Xvfb -displayfd 3 -screen 0 1280x1024x24 3>"$work/display" 2>/dev/null &
    server=$!
    for _ in $(seq 50); do [ -s "$work/display" ] && break; sleep 0.1; done
    export DISPLAY=:$(cat "$work/display")
fi
finish() {
    WINEPREFIX=$ZG_WINE_PREFIX wineserver -k 2>/dev/null || true
    [ -z "${server:-}" ] || kill "$server" 2>/dev/null || true
}
trap finish EXIT

sample=$tree/data/samples/LOVETT_1988.frq
drive=$ZG_WINE_PREFIX/drive_c

# A control file for the series of the samples, with names as they are on this drive.
run_directory() {
    mkdir -p "$1"
    cp "$tree/data/samples/valley_series.tsf" "$1/series.tsf"
    sed -e 's|METINP = t.tsf|METINP = series.tsf|; s|ROSEPLT = rose_out|ROSEPLT = out|' \
        -e 's|IBYR  = 2005|IBYR  = 2023|; s|IBMO  = 3|IBMO  = 12|; s|IBDY  = 7|IBDY  = 1|; s|IBHR  = 6|IBHR  = 0|; s|IBSEC = 1815|IBSEC = 0|' \
        -e 's|IEYR  = 2005|IEYR  = 2024|; s|IEMO  = 12|IEMO  = 2|; s|IEDY  = 31|IEDY  = 1|; s|IEHR  = 23|IEHR  = 0|' \
        "$tree/tests/processing/control/tsf.inp" >"$1/run.inp"
}

# programs WHAT FOLDER: all three programs of a folder
programs() {
    local what=$1 place=$2 out=$work/out status=0
    rm -rf "$out"
    run_directory "$out"
    (cd "$out" && wine "$place/zephyrgraph-export.exe" "Z:$sample" --rose all --out "Z:$out/roses" >/dev/null) || fail "$what: the companion failed"
    [ "$(ls "$out/roses" | wc -l)" -eq 9 ] || fail "$what: nine pictures were expected"
    (cd "$out" && wine "$place/tempoline.exe" run.inp) || fail "$what: the processor failed"
    [ -s "$out/out.frq" ] || fail "$what: the processor made no rose"
    # Still running, with the file in its title, after some seconds.
    wine "$place/zephyrgraph.exe" "Z:$sample" >/dev/null 2>"$work/start.log" &
    local pid=$! title=
    for _ in $(seq 60); do
        title=$(xdotool search --onlyvisible --name 'Zephyrgraph - LOVETT_1988.frq' 2>/dev/null || true)
        [ -n "$title" ] && break
        sleep 0.5
    done
    [ -n "$title" ] || fail "$what: no window shows the file that was given"
    sleep 2
    import -window root "$work/$(basename "$what").png"
    kill -0 "$pid" 2>/dev/null || fail "$what: the program ended by itself"
    WINEPREFIX=$ZG_WINE_PREFIX wineserver -k || true
    wait "$pid" || status=$?
    [ -s "$place/docs/guide.md" ] || fail "$what: no user guide"
    echo "$what: nine roses drawn, a rose made of raw data, a file opened in the window"
}

# The portable folder, where names have blanks and letters of other alphabets.
odd="$drive/Würzburg Вена"
mkdir -p "$odd"
(cd "$odd" && unzip -q "$portable")
programs portable "$(dirname "$(find "$odd" -name zephyrgraph.exe)")"
