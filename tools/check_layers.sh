#!/usr/bin/env bash
# Each folder may include only folders below it in the map, and no folder below platform/ may include a toolkit header.
set -euo pipefail
cd "$(dirname "$0")/.."
fail=0

# folder: the folders whose headers it may include
declare -A allowed=(
    [base]="base"
    [graph/frq]="base graph/frq"
    [graph/model]="base graph/model"
    [graph/script]="base graph/script"
    [graph/render]="base graph/frq graph/model graph/script graph/render"
    [graph/control]="base graph/frq graph/model graph/script graph/render graph/control"
    [processing]="base processing"
    [shell/settings]="base graph/frq graph/model graph/script graph/render graph/control shell/settings"
    [platform]="base graph/frq graph/model graph/script graph/render graph/control processing shell/settings platform"
    [dialogs/point]="base processing graph/frq graph/model graph/render graph/control shell/settings platform dialogs/point"
    [dialogs/gridded]="base processing graph/frq graph/model graph/render graph/control shell/settings platform dialogs/gridded"
    [batch]="base graph/frq graph/model graph/script graph/render graph/control processing shell/settings platform batch"
    [tempoline]="base processing tempoline tempoline/readers"
    [tempoline/readers]="base processing tempoline tempoline/readers"
    [export]="base graph/frq graph/model graph/script graph/render graph/control platform export"
)

for folder in "${!allowed[@]}"; do
    depth=""
    [ "$folder" = shell/settings ] || depth="-maxdepth 1"
    while IFS=: read -r file include; do
        target=$(dirname "$include")
        case " ${allowed[$folder]} " in
            *" $target "*) ;;
            *) echo "$file includes $include, which lies outside what $folder/ may use"; fail=1 ;;
        esac
    done < <(find "$folder" $depth \( -name '*.h' -o -name '*.cpp' \) -print0 2>/dev/null |
             xargs -0 -r grep -HoP '^#include "\K[a-z]+[a-z/_]*/[^"]+' || true)
done

toolkit=$(grep -rnE '^#include *<Q' base graph processing shell/settings tempoline 2>/dev/null || true)
if [ -n "$toolkit" ]; then
    echo "Toolkit headers below platform/:"
    echo "$toolkit"
    fail=1
fi
exit $fail
