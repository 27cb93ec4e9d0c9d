#!/usr/bin/env bash
# Renews the pictures of the user guide: forms from the tests' table, and moments of the walk in a real window. Needs what
# ./test.sh has built (or the programs in the given directory) and what ./test.sh --e2e needs.
set -euo pipefail
cd "$(dirname "$0")/.."

bin=${1:-build/test/bin}
forms=build/guide/forms
walk=build/guide/walk
scratch=/tmp/zephyrgraph
rm -rf "$forms" "$walk" "$scratch"
mkdir -p "$forms" "$walk"
"$bin"/zg_form_pictures "$forms"
ZG_WALK_DIR=$scratch python3 -B tests/e2e/walk.py "$bin" "$walk"

target=docs/pictures
while read -r picture form; do
    cp "$forms/$form.png" "$target/$picture.png"
done <<'FORMS'
about frmAboutZephyrgraph
aspect frmAspect
choose_directory frmChangeDir
choose_rose frmSelectWindRose
classes frmSetWindSpeedClasses
comment frmComment
error frmError
expressions frmExpr
grid_fonts frmGridFonts
knots frmMain_Knots
labels frmAddLabel
legend frmOptionsLegend
options frmOptions_Details
projection frmProjectionInfo_LCC
properties frmProperties_Font_Patterns
radius frmChangeRadius
seasons frmSetSeasons
splash frmSplashScreen
table frmTable
ventos frmProcessVENTOSDATFiles_Degrees
wizard1 frmProcess3DDATFiles_Files
wizard2 frmProcess3DDATFiles_Information
wizard3 frmProcess3DDATFiles_Cells
wizard3s frmProcess3DDATFiles_Stations
wizard4 frmProcess3DDATFiles_Directory
zoom frmZoom
FORMS

while read -r picture step; do
    cp "$(ls "$walk"/[0-9][0-9]_"$step".png)" "$target/$picture.png"
done <<'STEPS'
aermet surface
batch batch
curves curve
main rose
monitor monitor
processed surf_window
profile profile
report report
series series
surf surf
up up
STEPS
echo "$(ls "$target" | wc -l) pictures in $target"
