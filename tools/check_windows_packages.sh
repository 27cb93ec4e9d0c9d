#!/usr/bin/env bash
# Checks the packages for Windows in a fresh Windows of Wine. The installer: installed silently, started by an FRQ file, used, updated, removed. The
# portable folder: unpacked and used. Used means: roses drawn, a rose made of raw data by the processor, roses made and drawn of raw data by the
# companion, a file opened in the window.
# Needs an X server for the window: one of its own is started where there is none.
#     tools/check_windows_packages.sh [BUILD]   the packages in that build directory; by default build/windows
set -euo pipefail
cd "$(dirname "$0")/.."
tree=$PWD
build=${1:-build/windows}
installer=$(ls "$tree/$build"/zephyrgraph-*-windows-*.exe)
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
    for _ in $(seq 600); do [ -s "$work/display" ] && break; sleep 0.1; done
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
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

# with_classes WHAT PICTURE: four classes of a rose have their colours in the picture.
with_classes() {
    local colours colour
    colours=$(convert "$2" -depth 8 -format %c histogram:info:-)
    for colour in FF0000 00FF00 0000FF FFFF00; do
        grep -q "#$colour" <<<"$colours" || fail "$1: the rose has no class in #$colour; see $2"
    done
}

# companion WHAT FOLDER WORDS...: its status is also 0 if a thread breaks after the work. Its messages are in $work/errors.
companion() {
    local what=$1 place=$2
    shift 2
    wine "$place/zephyrgraph-export.exe" "$@" >/dev/null 2>"$work/errors" || { cat "$work/errors" >&2; fail "$what: the companion failed"; }
    ! grep 'wine: Unhandled' "$work/errors" >&2 || fail "$what: the companion crashed"
}

first_rose() { tr -d '\r' <"$1" | sed -n '/All Periods/,$p' | head -n 18; }

# raw_data WHAT FOLDER: the companion alone, by the processor beside it, from raw data to pictures: a logger's table and an AERMET surface file, of
# which another program has made a rose too.
raw_data() {
    local what=$1 place=$2 out=$work/raw
    rm -rf "$out"
    mkdir -p "$out"
    awk 'BEGIN {
        print "Timestamp,Speed,Direction"
        for (i = 0; i < 744; i++) printf "2023-01-%02d %02d:00,%.1f,%d\n", i / 24 + 1, i % 24, i % 13 + 0.5, i * 37 % 360
    }' >"$out/mast.csv"
    (cd "$out" && companion "$what" "$place" mast.csv "Z:$tree/data/samples/LOVETT.SFC" --frq --rose 1 --out roses)
    grep -q '^mast.csv: a table by COMMA, .* 744 records of 1 h ' "$work/errors" || fail "$what: the table was not read as expected"
    grep -q 'Total Periods = 744; Valid Periods = 744;' "$out/roses/mast.frq" || fail "$what: not every hour of the table was counted"
    diff <(first_rose "$tree/tests/tempoline/data/LOVETT_1988.frq") <(first_rose "$out/roses/LOVETT.frq") >&2 ||
        fail "$what: the rose of the surface file is not the one of another program"
    with_classes "$what" "$out/roses/mast_01.png"
    with_classes "$what" "$out/roses/LOVETT_01.png"
}

# programs WHAT FOLDER COMMAND...: all three programs of a folder; the command opens the sample in the window.
programs() {
    local what=$1 place=$2 out=$work/out title=
    shift 2
    rm -rf "$out"
    run_directory "$out"
    (cd "$out" && companion "$what" "$place" "Z:$sample" --rose all --out "Z:$out/roses")
    [ "$(ls "$out/roses" | wc -l)" -eq 9 ] || fail "$what: nine pictures were expected"
    # The names of the directories show in no picture, but what cannot be read from them is missing: fonts.
    [ -e "$work/first" ] || cp -r "$out/roses" "$work/first"
    diff -r "$work/first" "$out/roses" >&2 || fail "$what: the pictures differ from those of the first place"
    (cd "$out" && wine "$place/tempoline.exe" run.inp) || fail "$what: the processor failed"
    [ -s "$out/out.frq" ] || fail "$what: the processor made no rose"
    raw_data "$what" "$place"
    # Still on show, with the file in its title and its rose, after some seconds.
    wine "$@" >/dev/null 2>"$work/start.log" &
    opener=$!
    for _ in $(seq 240); do
        title=$(xdotool search --onlyvisible --name 'Zephyrgraph - LOVETT_1988.frq' 2>/dev/null || true)
        [ -n "$title" ] && break
        sleep 0.5
    done
    [ -n "$title" ] || fail "$what: no window shows the file that was given"
    sleep 2
    local shot=$work/$what.png
    import -window root "$shot"
    xdotool search --onlyvisible --name 'Zephyrgraph - LOVETT_1988.frq' >/dev/null || fail "$what: the program ended by itself"
    with_classes "$what" "$shot"
    [ -s "$place/docs/guide.md" ] || fail "$what: no user guide"
    echo "$what: nine roses drawn, roses of raw data made and drawn, a file opened in the window"
}

# The programs of this Windows end, whatever they do.
finish_programs() {
    WINEPREFIX=$ZG_WINE_PREFIX wineserver -k || true
    wait "$opener" || true
}

query() { wine reg query "$@" 2>/dev/null | tr -d '\r' || true; }
owned() { grep -q Zephyrgraph.FRQ <<<"$(query 'HKCU\Software\Classes\.frq' /ve)"; }

# The installer.
wine reg add 'HKCU\Software\Classes\.frq' /ve /d Other.Program /f >/dev/null
# No program of another has to do with a first installation.
cp "$drive/windows/system32/whoami.exe" "$drive/uninstall.exe"
(cd "$drive" && wine "$installer" /S) || fail "the installer failed"
rm "$drive/uninstall.exe" || fail "the installer removed a program that is not its own"
place=$(dirname "$(find "$drive/users" -name zephyrgraph.exe -print -quit)")
[ -f "$place/zephyrgraph.exe" ] || fail "nothing was installed"
(cd "$place" && find . -type f) | sort >"$work/installed"
(cd "$tree/$build" && unzip -qqo "$portable" -d "$work/portable" && cd "$work/portable"/* && find . -type f; echo ./uninstall.exe) | sort >"$work/expected"
diff "$work/expected" "$work/installed" >&2 || fail "the installer and the portable folder differ"
owned || fail "FRQ files do not belong to the program"
[ -n "$(find "$drive/users" -ipath '*Start Menu*Zephyrgraph.lnk')" ] || fail "the Start menu has no entry"
[ "$(ls "$place/licenses" | wc -l)" -ge 12 ] || fail "licences are missing"
# This Wine does not show the user's kinds of files among those of all users.
for key in .frq Zephyrgraph.FRQ; do wine reg copy "HKCU\\Software\\Classes\\$key" "HKLM\\Software\\Classes\\$key" /s /f >/dev/null; done
programs installed "$place" start "Z:${sample//\//\\}"
for key in .frq Zephyrgraph.FRQ; do wine reg delete "HKLM\\Software\\Classes\\$key" /f >/dev/null; done

status=0
wine "$installer" /S || status=$?
[ $status -eq 2 ] || fail "the installer went on although the program was running: $status"
finish_programs

# What belongs to the user: settings, own files, a changed table.
echo "Mine,999999,0,0,,,,45,7,WGS-84" >>"$place/Station_Data.csv"
cp "$place/Station_Data.csv" "$work/Station_Data.csv"
cp "$sample" "$place/samples/mine.frq"
wine "$installer" /S || fail "the update failed"
cmp "$work/Station_Data.csv" "$place/Station_Data.csv" || fail "the update lost the user's table"
owned || fail "FRQ files do not belong to the program after the update"
# As an installation leaves it that is broken off.
mv "$place/Station_Data.csv" "$place/Station_Data.csv.kept"
echo "Half" >"$place/Station_Data.csv"
wine "$installer" /S || fail "the update after one that was broken off failed"
cmp "$work/Station_Data.csv" "$place/Station_Data.csv" || fail "the update after one that was broken off lost the user's table"
(cd "$place" && find . -type f) | sort | comm -13 "$work/installed" - >"$work/own"
grep -qx ./Zephyrgraph.cfg "$work/own" || fail "the update lost the settings"
{ cat "$work/own"; echo ./Station_Data.csv; } | sort >"$work/kept"

wine "$place/uninstall.exe" /S
# The removal goes on in a copy of itself.
for _ in $(seq 240); do [ -e "$place/uninstall.exe" ] || break; sleep 0.5; done
sleep 1
(cd "$place" && find . -type f) | sort >"$work/left"
diff "$work/kept" "$work/left" >&2 || fail "after the removal other files than the user's are left"
cmp "$work/Station_Data.csv" "$place/Station_Data.csv" || fail "the removal changed the user's table"
rm -r "$place/samples" "$place"/*.*
rmdir "$place" || fail "directories are left"
grep -q Other.Program <<<"$(query 'HKCU\Software\Classes\.frq' /ve)" || fail "FRQ files were not given back"
for key in 'Classes\Zephyrgraph.FRQ' 'Microsoft\Windows\CurrentVersion\Uninstall\Zephyrgraph'; do
    ! wine reg query "HKCU\Software\$key" >/dev/null 2>&1 || fail "$key is still registered"
done
[ -z "$(find "$drive/users" -iname '*zephyrgraph*')" ] || fail "left: $(find "$drive/users" -iname '*zephyrgraph*')"
echo "updated and removed: only the user's files were left: $(tr '\n' ' ' <"$work/kept")"

# The portable folder, where names have blanks and letters of other alphabets.
odd="$drive/Würzburg Вена"
mkdir -p "$odd"
(cd "$odd" && unzip -q "$portable")
place=$(dirname "$(find "$odd" -name zephyrgraph.exe)")
programs portable "$place" "$place/zephyrgraph.exe" "Z:$sample"
finish_programs
