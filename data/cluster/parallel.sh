#!/usr/bin/env bash
# Runs several control files on all cores of this machine and joins their counts.
#     parallel.sh NAME A.inp B.inp ...     makes NAME.frq and NAME.tab from the TAB files of the runs
# TEMPOLINE names the processor if it is not in the PATH as tempoline.exe.
# Older results of that name are kept aside as NAME.previous.frq and NAME.previous.tab until there are new ones, so that
# none passes for that of a run that failed or was killed.
set -euo pipefail

[ $# -ge 2 ] || { echo "usage: parallel.sh NAME A.inp [B.inp ...]" >&2; exit 2; }
export TEMPOLINE=${TEMPOLINE:-tempoline.exe}
name=$1
shift

# A control file names each output in a line "! TSFOUT = NAME !"; that of a run that reads a series has
# "! ROSEPLT = NAME !".
outputs() {
    sed -n "s/ *!END!.*//; s/.*! *$1 *= *\\(.*[^ ]\\) *!.*/\\1/p" "$2"
}
tabs=()
for control in "$@"; do
    found=$(outputs TSFOUT "$control")
    [ -n "$found" ] || found=$(outputs ROSEPLT "$control")
    [ -n "$found" ] || { echo "$control: there is no TSFOUT and no ROSEPLT that names its results" >&2; exit 1; }
    while IFS= read -r output; do tabs+=("$output.tab"); done <<<"$found"
done

aside=("$name.previous.frq" "$name.previous.tab")
tell_kept() {
    local status=$? kept="" file
    for file in "${aside[@]}"; do [ ! -e "$file" ] || kept+="${kept:+, }$file"; done
    [ "$status" -eq 0 ] || [ -z "$kept" ] || echo "the results of an earlier run are kept as $kept" >&2
}
trap tell_kept EXIT
# The FRQ file comes last: a TAB file without one is of a run that was killed, and replaces nothing that is aside.
whole=$([ ! -e "$name.frq" ] || echo yes)
for kind in tab frq; do
    [ ! -e "$name.$kind" ] || { [ -z "$whole" ] && [ -e "$name.previous.$kind" ]; } || mv -f -- "$name.$kind" "$name.previous.$kind"
done

if command -v parallel >/dev/null 2>&1; then
    parallel --halt now,fail=1 "$TEMPOLINE" {} ::: "$@"
else
    # Only a status of 255 keeps xargs from starting further runs.
    printf '%s\0' "$@" | xargs -0 -n 1 -P "$(nproc)" sh -c '"$TEMPOLINE" "$0" || exit 255'
fi
trap - EXIT  # the processor tells it itself, and removes what is aside when it has the new results
"$TEMPOLINE" --merge --out "$name" "${tabs[@]}"
