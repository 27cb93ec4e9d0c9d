#!/usr/bin/env bash
# Runs several control files on all cores of this machine and joins their counts.
#     parallel.sh NAME A.inp B.inp ...     makes NAME.frq and NAME.tab from the TAB files of the runs
# TEMPOLINE names the processor if it is not in the PATH as tempoline.exe.
set -euo pipefail

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

if command -v parallel >/dev/null 2>&1; then
    parallel --halt now,fail=1 "$TEMPOLINE" {} ::: "$@"
else
    # Only a status of 255 keeps xargs from starting further runs.
    printf '%s\0' "$@" | xargs -0 -n 1 -P "$(nproc)" sh -c '"$TEMPOLINE" "$0" || exit 255'
fi
"$TEMPOLINE" --merge --out "$name" "${tabs[@]}"
