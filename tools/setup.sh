#!/usr/bin/env bash
# Installs the Debian packages for building, running and testing that are missing.
#   tools/setup.sh            what ./run.sh needs
#   tools/setup.sh --tests    and what ./test.sh needs
#     tools/setup.sh --e2e      and what the walk through the program in a real window needs
#   tools/setup.sh --checks   and what the stricter checks need
#   tools/setup.sh --windows  and what tools/windows.sh needs
#     tools/setup.sh --cluster  only what tests/cluster/slurm.sh needs
set -euo pipefail

packages=(g++ cmake ninja-build qt6-base-dev libcli11-dev nlohmann-json3-dev libproj-dev zlib1g-dev
          fonts-liberation fonts-dejavu-core libreoffice-impress-nogui libreoffice-writer-nogui)
tests=(libgtest-dev libbenchmark-dev libmuparser-dev parallel python3 librsvg2-bin)
e2e=(xvfb openbox xdotool imagemagick)
checks=(clang libclang-rt-14-dev clang-format clang-tidy cppcheck git debootstrap dpkg-dev file chromium-headless-shell)
# An npm that is not Debian's, with its own Node, is as good, and Debian's cannot be installed beside it.
command -v npm >/dev/null 2>&1 || checks+=(npm)
windows=(g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine wine64 nsis librsvg2-bin libgtest-dev python3 unzip dpkg-dev tcl sqlite3)
cluster=(slurmctld slurmd slurm-client munge python3)

case "${1:-}" in
    "") ;;
    --tests) packages+=("${tests[@]}") ;;
    --e2e) packages+=("${tests[@]}" "${e2e[@]}") ;;
    --checks)
        packages+=("${tests[@]}" "${e2e[@]}" "${checks[@]}" "${windows[@]}")
        "$0" --cluster || echo "tools/setup.sh: no Slurm can be had here: tests/cluster/slurm.sh will be skipped" >&2
        ;;
    --cluster) packages=("${cluster[@]}") ;;
    --windows) packages+=("${e2e[@]}" "${windows[@]}") ;;
    *) echo "tools/setup.sh: unknown option $1" >&2; exit 2 ;;
esac

if ! command -v dpkg-query >/dev/null 2>&1; then
    echo "tools/setup.sh: this is no Debian system; please install yourself: ${packages[*]}" >&2
    exit 0
fi

missing=()
for package in "${packages[@]}"; do
    state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$state" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

if [ "$(id -u)" -eq 0 ]; then
    as_root=()
elif command -v sudo >/dev/null 2>&1; then
    as_root=(sudo)
else
    echo "tools/setup.sh: these packages are missing and neither root nor sudo is at hand: ${missing[*]}" >&2
    echo "Please have them installed:  apt-get install --no-install-recommends ${missing[*]}" >&2
    exit 1
fi

echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
install() { "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null; }
# The package lists may be missing or too old: only then they are fetched.
install 2>/dev/null || { "${as_root[@]}" apt-get update -qq && install; }

# The checks start their own daemons; those of the newly installed packages must not run.
if [ "${1:-}" = --cluster ] && [ -d /run/systemd/system ]; then
    for service in munge slurmctld slurmd; do
        case " ${missing[*]} " in *" $service "*) "${as_root[@]}" systemctl disable --now --quiet $service || true ;; esac
    done
fi
