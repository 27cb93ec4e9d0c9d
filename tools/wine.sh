#!/usr/bin/env bash
# Runs a program for Windows under Wine:  tools/wine.sh PROGRAM.exe WORDS...
# The Windows that it finds is one of the checks' own, in the cache (ZG_WINDOWS_CACHE) or where ZG_WINE_PREFIX says; the first start makes it.
set -euo pipefail
cache=${ZG_WINDOWS_CACHE:-$HOME/.cache/zephyrgraph-windows}
export WINEARCH=win64 WINEPREFIX=${ZG_WINE_PREFIX:-$cache/wine} WINEDEBUG=${WINEDEBUG:--all}
# It neither offers to fetch parts of itself nor enters programs into this desktop's menus.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
# What a program of a build directory needs beside it: the toolkit and the compiler's own libraries.
compiler=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll 2>/dev/null || echo .)")
export WINEPATH="Z:$cache/kit/bin;Z:$compiler;Z:/usr/x86_64-w64-mingw32/lib"
if [ ! -e "$WINEPREFIX/system.reg" ]; then
    mkdir -p "$WINEPREFIX"
    exec 9>"$WINEPREFIX.lock"
    flock 9
    # Letters as on the desks of Windows: with Wine's own choice the thin stroke of a capital I vanishes.
    smooth() { wine reg add 'HKCU\Control Panel\Desktop' /v FontSmoothingType /t REG_DWORD /d 2 /f; }
    [ -e "$WINEPREFIX/system.reg" ] || { wine wineboot -i && smooth && wineserver -w; } >/dev/null 2>&1 9>&-
    exec 9>&-
fi
# Wine's server outlives a program by some seconds only, and a program that starts just as it ends fails.
wineserver -p60 </dev/null >/dev/null 2>&1 || true
exec wine "$@"
