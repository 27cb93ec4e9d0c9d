#!/usr/bin/env bash
# Runs a program for Windows under Wine:  tools/wine.sh PROGRAM.exe WORDS...
# The Windows that it finds is one of the checks' own, in the cache (ZG_WINDOWS_CACHE) or where ZG_WINE_PREFIX says; the first start makes it.
set -euo pipefail
cache=${ZG_WINDOWS_CACHE:-$HOME/.cache/zephyrgraph-windows}
export WINEARCH=win64 WINEPREFIX=${ZG_WINE_PREFIX:-$cache/wine} WINEDEBUG=${WINEDEBUG:--all}
# It neither offers to fetch parts of itself nor enters programs into this desktop's menus.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
if [ ! -e "$WINEPREFIX/system.reg" ]; then
    mkdir -p "$WINEPREFIX"
    exec 9>"$WINEPREFIX.lock"
    flock 9
    [ -e "$WINEPREFIX/system.reg" ] || { wine wineboot -i && wineserver -w; } >/dev/null 2>&1 9>&-
    exec 9>&-
fi
exec wine "$@"
