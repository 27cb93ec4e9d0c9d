#!/usr/bin/env bash
# Builds for Windows on Debian and checks the result under Wine. Each step is skipped when its result is there.
#   tools/windows.sh               all steps: kit, core, programs, packages, check
#   tools/windows.sh STEP...       only these
#     kit        the libraries for Windows (toolkit, PROJ) in the cache: unpacked from ../shared/windows where such an archive is beside the
#                checkout, else built from Debian's source packages (half an hour on two cores)
#     core       what needs no toolkit, with its tests under Wine
#     programs   everything, with its tests under Wine
#     packages   the installer and the portable folder
#     check      both in a fresh Windows of Wine
# The cache is ZG_WINDOWS_CACHE, or zephyrgraph-windows in the user's cache; it is outside the checkout and can be kept or deleted at will.
set -euo pipefail
cd "$(dirname "$0")/.."
tree=$PWD
cache=${ZG_WINDOWS_CACHE:-$HOME/.cache/zephyrgraph-windows}
export ZG_WINDOWS_CACHE=$cache
kit=$cache/kit
mkdir -p "$cache"

say() { printf -- '-- %s\n' "$*"; }

# sources PACKAGE: fetches and unpacks Debian's source package, its signature checked, and says where. The lists of sources are the script's own.
sources() {
    local package=$1 apt=$cache/apt
    mkdir -p "$apt/lists/partial" "$cache/src"
    apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' | sort -u |
        sed 's/^/deb-src /' >"$apt/sources.list"
    local own=(-o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null -o "Dir::State::Lists=$apt/lists"
               -o APT::Sandbox::User=)
    if [ ! -e "$apt/fresh" ]; then
        apt-get "${own[@]}" update -qq
        touch "$apt/fresh"
    fi
    (cd "$cache/src" && apt-get "${own[@]}" source -qq "$package" >/dev/null)
    find "$cache/src" -maxdepth 1 -type d -name "$package-*" | sort | tail -1
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
    cmake_project "$(sources proj)" -DBUILD_SHARED_LIBS=OFF -DENABLE_TIFF=OFF -DENABLE_CURL=OFF -DBUILD_APPS=OFF -DBUILD_TESTING=OFF \
        -DSQLITE3_INCLUDE_DIR="$kit/include" -DSQLITE3_LIBRARY="$kit/lib/libsqlite3.a" -DEXE_SQLITE3="$(command -v sqlite3)"
}

build_toolkit() {
    [ -e "$kit/lib/cmake/Qt6/Qt6Config.cmake" ] && return
    say "the toolkit from Debian's source package: half an hour on two cores"
    local off=() system=() feature
    for feature in sql network dbus concurrent xml vulkan icu zstd tabletevent; do off+=("-DFEATURE_$feature=OFF"); done
    for feature in zlib png jpeg freetype harfbuzz pcre2; do system+=("-DFEATURE_system_$feature=OFF"); done
    cmake_project "$(sources qt6-base)" "${off[@]}" "${system[@]}" -DINPUT_opengl=no -DFEATURE_testlib=ON \
        -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF
}

# Libraries that are headers alone: as Debian has them, but away from its other headers.
copy_headers() {
    mkdir -p "$kit/include" "$kit/share/cmake"
    cp -r /usr/include/nlohmann /usr/include/CLI "$kit/include"
    cp -r /usr/share/cmake/nlohmann_json /usr/share/cmake/CLI11 "$kit/share/cmake"
}

make_kit() {
    [ -e "$cache/kit-is-whole" ] && return
    local archive
    archive=$(find ../shared/windows -maxdepth 1 -name '*.tar.xz' 2>/dev/null | sort | tail -1 || true)
    mkdir -p "$kit"
    if [ -n "$archive" ] && [ ! -e "$kit/bin" ]; then
        say "the kit from $archive"
        mkdir -p "$cache/unpacked"
        tar -xJf "$archive" -C "$cache/unpacked"
        # Its folders are at the top, or in one folder.
        local top=$cache/unpacked
        [ -e "$top/lib" ] || top=$(find "$top" -mindepth 1 -maxdepth 1 -type d | head -1)
        cp -r "$top/." "$kit"
        rm -rf "$cache/unpacked"
    fi
    build_sqlite
    build_proj
    build_toolkit
    copy_headers
    touch "$cache/kit-is-whole"
}

# built PRESET: configured, built, and tested under Wine.
built() {
    cmake --preset "$1" --log-level=WARNING
    cmake --build --preset "$1"
    tools/wine.sh cmd /c ver >/dev/null
    ctest --preset "$1" -j "$(nproc)"
}

pack() {
    cmake --preset windows --log-level=WARNING
    cmake --build --preset windows --target zephyrgraph zephyrgraph-export tempoline
    (cd build/windows && rm -f zephyrgraph-*-windows-* && cpack)
}

[ $# -gt 0 ] || set -- kit core programs packages check
tools/setup.sh --windows
for step in "$@"; do
    case "$step" in
        kit) make_kit ;;
        core) make_kit; built windows-core ;;
        programs) make_kit; built windows ;;
        packages) make_kit; pack ;;
        check) tools/check_windows_packages.sh build/windows ;;
        *) echo "tools/windows.sh: there is no step $step" >&2; exit 2 ;;
    esac
done
