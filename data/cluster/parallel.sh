#!/usr/bin/env bash
# Runs several control files on all cores of this machine and joins their counts.
#   parallel.sh NAME A.inp B.inp ...     makes NAME.frq and NAME.tab of the TAB files of the runs
# TEMPOLINE names the processor when it does not lie in the PATH as tempoline.exe.
set -euo pipefail

export TEMPOLINE=${TEMPOLINE:-tempoline.exe}
name=$1
shift

# Each output of a run stands in its control file as "! TSFOUT = NAME !", the one of a run that reads a series as
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
    # xargs begins nothing more only after a status of 255.
    printf '%s\0' "$@" | xargs -0 -n 1 -P "$(nproc)" sh -c '"$TEMPOLINE" "$0" || exit 255'
fi
"$TEMPOLINE" --merge --out "$name" "${tabs[@]}"
