#!/usr/bin/env bash
# Builds for Windows on Debian and checks the result under Wine. Each step is skipped when its result is there.
#   tools/windows.sh               all steps but quick
#   tools/windows.sh STEP...       only these
#     kit        the libraries for Windows (toolkit, PROJ) in the cache: unpacked from ../shared/windows where such an archive is beside the
#                checkout, else built from Debian's source packages (half an hour on two cores)
#     core       what needs no toolkit, with its tests under Wine
#     programs   everything, with its tests under Wine
#     packages   the installer and the portable folder
#     check      both in a fresh Windows of Wine
#     walk       the walk of tests/e2e through the portable folder, in a real window; pictures in out/e2e-windows
#     quick      what fits among the checks of every change: core; if the toolkit for Windows is there or lies beside the checkout, also the
#                programs, packages and check, without the tests that need the toolkit
# The cache is ZG_WINDOWS_CACHE, or zephyrgraph-windows in the user's cache; it is outside the checkout and can be kept or deleted at will.
set -euo pipefail
cd "$(dirname "$0")/.."
tree=$PWD
cache=${ZG_WINDOWS_CACHE:-$HOME/.cache/zephyrgraph-windows}
export ZG_WINDOWS_CACHE=$cache
kit=$cache/kit
mkdir -p "$cache"

say() { printf -- '-- %s (after %d s)\n' "$*" "$SECONDS"; }

# Whatever happens, nothing of Wine is left running.
trap 'WINEPREFIX=${ZG_WINE_PREFIX:-$cache/wine} wineserver -k 2>/dev/null || true' EXIT
# limited SECONDS COMMAND...: a Wine that hangs fails after that time.
limited() {
    local status=0
    timeout --kill-after=10 "$@" </dev/null || status=$?
    case $status in
        124) echo "tools/windows.sh: not done after $1 s: ${*:2}" >&2 ;;
        137) echo "tools/windows.sh: killed, or not done after $1 s and deaf to its end: ${*:2}" >&2 ;;
    esac
    return $status
}

# sources PACKAGE: fetches and unpacks Debian's source package, its signature checked, and says where. The lists of sources are the script's own.
# Within $(...) no fault ends the function by itself.
sources() {
    local package=$1 apt=$cache/apt found
    mkdir -p "$apt/lists/partial" "$cache/src" || return 1
    apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' | sort -u |
        sed 's/^/deb-src /' >"$apt/sources.list" || return 1
    local own=(-o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null -o "Dir::State::Lists=$apt/lists"
               -o APT::Sandbox::User=)
    [ -e "$apt/fresh" ] || apt-get "${own[@]}" update -qq || return 1
    (cd "$cache/src" && apt-get "${own[@]}" source -qq "$package" >/dev/null) || return 1
    rm "$apt/sources.list"
    found=$(find "$cache/src" -maxdepth 1 -type d -name "$package-*" | sort | tail -1)
    [ -n "$found" ] || { echo "tools/windows.sh: no source of $package" >&2; return 1; }
    # An update that reached nothing may end well too: what could be fetched by its lists proves them.
    touch "$apt/fresh"
    echo "$found"
}

# cmake_project SOURCES WORDS...: builds and installs one into the kit.
cmake_project() {
    local from=$1 build
    shift
    build=$cache/build/$(basename "$from")
    cmake -S "$from" -B "$build" -G Ninja --log-level=WARNING -DCMAKE_TOOLCHAIN_FILE="$tree/cmake/Windows.cmake" -DZG_WINDOWS_KIT="$kit" \
          -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$kit" "$@"
    cmake --build "$build"
    cmake --install "$build" --strip >/dev/null
}

build_sqlite() {
    [ -e "$kit/lib/libsqlite3.a" ] && return
    say "SQLite from Debian's source package"
    local from
    from=$(sources sqlite3)
    (cd "$from" && ./configure --disable-tcl >/dev/null && make sqlite3.c >/dev/null &&
     x86_64-w64-mingw32-gcc-posix -O2 -DSQLITE_THREADSAFE=1 -DSQLITE_OMIT_LOAD_EXTENSION -c sqlite3.c -o sqlite3-windows.o &&
     mkdir -p "$kit/lib" "$kit/include" && x86_64-w64-mingw32-ar rcs "$kit/lib/libsqlite3.a" sqlite3-windows.o &&
     cp sqlite3.h sqlite3ext.h "$kit/include")
}

build_proj() {
    [ -e "$kit/lib/libproj.a" ] && return
    say "PROJ from Debian's source package"
    local from
    from=$(sources proj)
    cmake_project "$from" -DBUILD_SHARED_LIBS=OFF -DENABLE_TIFF=OFF -DENABLE_CURL=OFF -DBUILD_APPS=OFF -DBUILD_TESTING=OFF \
        -DSQLITE3_INCLUDE_DIR="$kit/include" -DSQLITE3_LIBRARY="$kit/lib/libsqlite3.a" -DEXE_SQLITE3="$(command -v sqlite3)"
}

build_toolkit() {
    [ -e "$kit/lib/cmake/Qt6/Qt6Config.cmake" ] && return
    say "the toolkit from Debian's source package: half an hour on two cores"
    local off=() system=() feature from
    for feature in sql network dbus concurrent xml vulkan icu zstd tabletevent; do off+=("-DFEATURE_$feature=OFF"); done
    for feature in zlib png jpeg freetype harfbuzz pcre2; do system+=("-DFEATURE_system_$feature=OFF"); done
    from=$(sources qt6-base)
    cmake_project "$from" "${off[@]}" "${system[@]}" -DINPUT_opengl=no -DFEATURE_testlib=ON \
        -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF
}

# Libraries that are headers alone: as Debian has them, but away from its other headers.
copy_headers() {
    [ -e "$kit/share/cmake/CLI11" ] && return
    mkdir -p "$kit/include" "$kit/share/cmake"
    cp -r /usr/include/nlohmann /usr/include/CLI "$kit/include"
    cp -r /usr/share/cmake/nlohmann_json /usr/share/cmake/CLI11 "$kit/share/cmake"
}

unpack_kit() {
    mkdir -p "$kit"
    [ -e "$kit/bin" ] && return
    local archive
    archive=$(find ../shared/windows -maxdepth 1 -name '*.tar.xz' 2>/dev/null | sort | tail -1 || true)
    [ -n "$archive" ] || return 0
    say "the kit from $archive"
    rm -rf "$cache/unpacked"
    mkdir -p "$cache/unpacked"
    tar -xJf "$archive" -C "$cache/unpacked"
    # Its folders are at the top, or in one folder.
    local top=$cache/unpacked
    [ -e "$top/lib" ] || top=$(find "$top" -mindepth 1 -maxdepth 1 -type d | head -1)
    cp -r "$top/." "$kit"
    rm -rf "$cache/unpacked"
}

# What the processor and the libraries below the toolkit need.
make_core_kit() {
    unpack_kit
    build_sqlite
    build_proj
}

make_kit() {
    make_core_kit
    build_toolkit
    copy_headers
}

# built PRESET [TARGET...]
built() {
    say "$1: building"
    cmake --preset "$1" --log-level=WARNING
    cmake --build --preset "$1" --target "${@:2}"
}

# tested PRESET WORDS...: the tests under Wine, with words for ctest. A program that ended well without a word about its cases has not run.
tested() {
    local preset=$1 cases=build/$1/Testing/cases run
    say "$preset: tests under Wine"
    limited 900 tools/wine.sh cmd /c ver >/dev/null
    rm -rf "$cases"
    limited 1500 ctest --preset "$preset" --no-tests=error -j "$(nproc)" "${@:2}"
    for run in $(ctest --preset "$preset" "${@:2}" -N | sed -n 's/^ *Test *#[0-9]*: \(zg_.*\)$/\1/p'); do
        grep -qs '^<testsuites tests="[1-9]' "$cases/$run.xml" || { echo "tools/windows.sh: $run gave no result" >&2; return 1; }
    done
    run=$(sed -n 's/^<testsuites tests="\([0-9]*\)".*/\1/p' "$cases"/*.xml 2>/dev/null | paste -sd+ - || true)
    [ $((run)) -gt 0 ] || { echo "tools/windows.sh: no case ran" >&2; return 1; }
    say "$preset: $((run)) cases ran under Wine"
}

pack() {
    cmake --preset windows --log-level=WARNING
    cmake --build --preset windows --target zephyrgraph zephyrgraph-export tempoline
    (cd build/windows && rm -f zephyrgraph-*-windows-* && cpack)
}

quick() {
    make_core_kit
    if [ ! -e "$kit/lib/cmake/Qt6/Qt6Config.cmake" ]; then
        say "the toolkit for Windows is neither in the cache nor beside the checkout: only what needs none"
        built windows-core all
        tested windows-core
        return
    fi
    make_kit
    built windows fast_tests zephyrgraph zephyrgraph-export tempoline
    tested windows -L '^(fast|program)$'
    pack
    limited 900 tools/check_windows_packages.sh build/windows
}

walk() {
    local place=build/windows/walk
    rm -rf "$place"
    mkdir -p "$place"
    unzip -q build/windows/zephyrgraph-*-windows-*.zip -d "$place"
    limited 900 python3 -B tests/e2e/walk.py --wine "$place"/zephyrgraph-* out/e2e-windows
}

[ $# -gt 0 ] || set -- kit core programs packages check walk
tools/setup.sh --windows
for step in "$@"; do
    case "$step" in
        kit) make_kit ;;
        core) make_core_kit; built windows-core all; tested windows-core ;;
        programs) make_kit; built windows all; tested windows ;;
        packages) make_kit; pack ;;
        check) limited 900 tools/check_windows_packages.sh build/windows ;;
        walk) walk ;;
        quick) quick ;;
        *) echo "tools/windows.sh: there is no step $step" >&2; exit 2 ;;
    esac
done
