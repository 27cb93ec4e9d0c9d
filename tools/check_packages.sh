#!/usr/bin/env bash
# Makes both packages, installs each in a clean Debian 12, and starts the programs there as an unprivileged user. Needs root
# (for chroot) and, the first time, the network; the clean system is kept in build/package-check.
#     tools/check_packages.sh [BUILD]   the programs of that build directory; by default build/run, which is built first
set -euo pipefail
cd "$(dirname "$0")/.."

if [ "$(id -u)" -ne 0 ]; then
    echo "tools/check_packages.sh: a clean root can only be made by the superuser" >&2
    exit 1
fi

build=${1:-build/run}
[ -f "$build/build.ninja" ] || cmake --preset run --log-level=WARNING
cmake --build "$build"
rm -f "$build"/zephyrgraph*.tar.gz "$build"/zephyrgraph*.deb
(cd "$build" && cpack >cpack.log) || { cat "$build/cpack.log"; exit 1; }
deb=$(ls "$PWD/$build"/zephyrgraph*.deb)
folder=$(ls "$PWD/$build"/zephyrgraph*.tar.gz)

work=$PWD/build/package-check
root=$work/root
mkdir -p "$work"
unmount() { umount "$root/proc" 2>/dev/null || true; }
trap unmount EXIT
if [ ! -f "$work/base.tar" ]; then
    rm -rf "$root"
    debootstrap --variant=minbase bookworm "$root" >"$work/debootstrap.log" || { tail -5 "$work/debootstrap.log"; exit 1; }
    tar -C "$root" -cf "$work/base.tar.part" . && mv "$work/base.tar.part" "$work/base.tar"
fi

inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
as_user() { inside setpriv --reuid=65534 --regid=65534 --clear-groups env HOME=/tmp/home XDG_RUNTIME_DIR=/tmp/home QT_QPA_PLATFORM=offscreen "$@"; }

fresh_root() {
    unmount
    rm -rf "$root"
    mkdir -p "$root"
    tar -C "$root" -xf "$work/base.tar"
    cp /etc/resolv.conf "$root/etc/resolv.conf"
    mkdir -p "$root/proc" && mount -t proc proc "$root/proc"
    mkdir -p "$work/archives"
    cp -n "$work"/archives/*.deb "$root/var/cache/apt/archives/" 2>/dev/null || true
    inside apt-get update -qq
}

keep_downloads() { cp -n "$root"/var/cache/apt/archives/*.deb "$work/archives/" 2>/dev/null || true; }

# start_once WHAT DIRECTORY: the programs in that directory of the root
start_once() {
    local what=$1 place=$2 status
    inside install -d -o 65534 -g 65534 /tmp/home /tmp/out
    as_user "$place/zephyrgraph-export" /tmp/sample.frq --rose all --out /tmp/out >/dev/null
    [ "$(ls "$root/tmp/out" | wc -l)" -eq 9 ] || { echo "$what: nine pictures were expected in /tmp/out" >&2; exit 1; }
    as_user sh -c "cd /tmp/out && '$place/tempoline.exe' /tmp/run.inp"
    [ -s "$root/tmp/out/out.frq" ] || { echo "$what: the processor made no rose" >&2; exit 1; }
    # The desktop program must still be running after ten seconds.
    status=0
    as_user timeout 10 "$place/zephyrgraph" 2>"$work/start.log" || status=$?
    [ "$status" -eq 124 ] || { echo "$what: the program ended by itself with status $status" >&2; cat "$work/start.log" >&2; exit 1; }
    if grep -E "error while loading|Could not|cannot" "$work/start.log"; then echo "$what: see above" >&2; exit 1; fi
    rm -rf "$root/tmp/out" "$root/tmp/home"
    echo "$what: nine roses drawn, a rose made of raw data, the program started"
}

samples() {
    cp data/samples/LOVETT_1988.frq "$root/tmp/sample.frq"
    cp data/samples/valley_series.tsf "$root/tmp/series.tsf"
    sed -e 's|METINP = t.tsf|METINP = /tmp/series.tsf|; s|ROSEPLT = rose_out|ROSEPLT = out|' \
        -e 's|IBYR  = 2005|IBYR  = 2023|; s|IBMO  = 3|IBMO  = 12|; s|IBDY  = 7|IBDY  = 1|; s|IBHR  = 6|IBHR  = 0|; s|IBSEC = 1815|IBSEC = 0|' \
        -e 's|IEYR  = 2005|IEYR  = 2024|; s|IEMO  = 12|IEMO  = 2|; s|IEDY  = 31|IEDY  = 1|; s|IEHR  = 23|IEHR  = 0|' \
        tests/processing/control/tsf.inp >"$root/tmp/run.inp"
}

fresh_root
cp "$deb" "$root/tmp/zephyrgraph.deb"
inside apt-get install -y -qq --no-install-recommends -o APT::Keep-Downloaded-Packages=true /tmp/zephyrgraph.deb >"$work/apt.log" 2>&1 ||
    { tail -20 "$work/apt.log"; exit 1; }
keep_downloads
samples
start_once "Debian package" /usr/lib/zephyrgraph
[ "$(readlink -f "$root/usr/bin/zephyrgraph")" = "$root/usr/lib/zephyrgraph/zephyrgraph" ] || { echo "no link in /usr/bin" >&2; exit 1; }
[ -s "$root/usr/share/applications/zephyrgraph.desktop" ] || { echo "no desktop entry" >&2; exit 1; }
[ -s "$root/usr/lib/zephyrgraph/docs/guide.md" ] || { echo "no user guide" >&2; exit 1; }

depends=$(dpkg-deb -f "$deb" Depends | sed 's/([^)]*)//g; s/,/ /g')
fresh_root
# shellcheck disable=SC2086
inside apt-get install -y -qq --no-install-recommends -o APT::Keep-Downloaded-Packages=true $depends >"$work/apt.log" 2>&1 ||
    { tail -20 "$work/apt.log"; exit 1; }
samples
place="/srv/any place"
mkdir -p "$root$place"
tar -C "$root$place" --strip-components=1 -xzf "$folder"
start_once "portable folder" "$place"
