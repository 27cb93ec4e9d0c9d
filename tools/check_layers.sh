#!/usr/bin/env bash
# Each folder includes only from itself and from folders that the map (docs/architecture.md) lists before it, and no folder before platform/ includes
# a toolkit header.
set -euo pipefail
cd "$(dirname "$0")/.."
fail=0

graph="graph/frq graph/model graph/script graph/render graph/control"
plain="base formats windtable $graph headers processing settings"

# folder: the other folders whose headers it may include
declare -A allowed=(
    [base]=""
    [formats]="base"
    [windtable]="base"
    [graph/frq]="base"
    [graph/model]="base"
    [graph/script]="base"
    [graph/render]="base graph/frq graph/model graph/script"
    [graph/control]="base graph/frq graph/model graph/script graph/render"
    [headers]="base formats"
    [processing]="base formats"
    [settings]="base $graph"
    [platform]="$plain"
    [dialogs/point]="$plain platform"
    [dialogs/gridded]="$plain platform"
    [batch]="$plain platform"
    [shell]="$plain platform dialogs/point dialogs/gridded batch"
    [export]="base formats windtable $graph headers processing platform"
    [tempoline]="base formats windtable tempoline/readers"
    [tempoline/readers]="base formats windtable tempoline"
)
without_toolkit="$plain tempoline tempoline/readers"

sources_in() { find "$1" -maxdepth 1 \( -name '*.h' -o -name '*.cpp' \) -print0; }

for folder in "${!allowed[@]}"; do
    while IFS=: read -r file include; do
        target=$(dirname "$include")
        case " $folder ${allowed[$folder]} " in
            *" $target "*) ;;
            *) echo "$file includes $include, which lies outside what $folder/ may use"; fail=1 ;;
        esac
    done < <(sources_in "$folder" | xargs -0 -r grep -HoP '^#include "\K[a-z]+[a-z/_]*/[^"]+' || true)
done

for folder in $without_toolkit; do
    if found=$(sources_in "$folder" | xargs -0 -r grep -nE '^#include *<Q'); then
        echo "Toolkit headers in $folder/, which must not use the toolkit:"
        echo "$found"
        fail=1
    fi
done

# What the map does not name, nobody checks.
while read -r folder; do
    [ -n "${allowed[$folder]+named}" ] || { echo "$folder/ has sources and is not in the map"; fail=1; }
done < <(git ls-files '*.h' '*.cpp' | xargs -r -n1 dirname | sort -u | grep -vE '^(tests|bench)(/|$)')
systems=$(git grep -nE '(_WIN32|__linux__|__unix__|Q_OS_[A-Z])' -- '*.cpp' '*.h' || true)
calls=$(git grep -nE '^#include <(unistd|fcntl|poll|dirent|windows|qt_windows|sys/[a-z]+)\.h>' -- '*.cpp' '*.h' ':!tests' ':!bench' ':!*Posix.cpp' ':!*Windows.cpp' \
    ':!base/WindowsNames.*' || true)
if [ -n "$systems$calls" ]; then
    echo "What differs from system to system belongs in a pair of sources, ...Posix.cpp and ...Windows.cpp:"
    echo "$systems$calls"
    fail=1
fi
exit $fail
