#!/usr/bin/env bash
# Runs several control files on all cores of this machine and joins their counts.
#   parallel.sh NAME A.inp B.inp ...     makes NAME.frq and NAME.tab of the TAB files of the runs
# TEMPOLINE names the processor when it does not lie in the PATH as tempoline.exe.
set -euo pipefail

processor=${TEMPOLINE:-tempoline.exe}
name=$1
shift

if command -v parallel >/dev/null 2>&1; then
    parallel --halt now,fail=1 "$processor" {} ::: "$@"
else
    printf '%s\0' "$@" | xargs -0 -n 1 -P "$(nproc)" "$processor"
fi

# Each output of a run stands in its control file as "! TSFOUT = NAME !".
tabs=()
for control in "$@"; do
    while IFS= read -r output; do tabs+=("$output.tab"); done < <(sed -n 's/.*! TSFOUT *= *\(.*[^ ]\) *!  *!END!.*/\1/p' "$control")
done
"$processor" --merge --out "$name" "${tabs[@]}"
