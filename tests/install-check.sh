#!/usr/bin/env bash
# Installs the build into a fresh prefix and checks the tree as a desktop would: the menu entry
# and the AppStream file validate, the icon is there at every size, and the installed program
# starts, finds itself installed and keeps its files in the user's data folder.
# Usage: install-check.sh BUILD_DIR
set -euo pipefail
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
id=org.petalgarden.Petalgarden
cmake --install "$build" --prefix "$work/usr" >/dev/null
share=$work/usr/share

desktop-file-validate "$share/applications/$id.desktop"
appstreamcli validate --no-net "$share/metainfo/$id.metainfo.xml" >/dev/null
for size in 16 22 24 32 48 64 128 256; do
    test -s "$share/icons/hicolor/${size}x${size}/apps/$id.png" || { echo "no ${size}px icon" >&2; exit 1; }
done
test -s "$share/icons/hicolor/scalable/apps/$id.svg"
test -s "$share/petalgarden/PetalgardenHelp.html"
test -s "$share/petalgarden/help-pictures/card43.svg"
test -s "$share/doc/petalgarden/copyright"
[ "$(ls "$work/usr/bin")" = petalgarden ] || { echo "bin holds more than the program" >&2; exit 1; }

# The splash stands for three seconds; the files are made before it, at start-up.
status=0
XDG_DATA_HOME="$work/data" QT_QPA_PLATFORM=offscreen timeout 2 "$work/usr/bin/petalgarden" || status=$?
[ "$status" -eq 124 ] || { echo "the installed program ended with status $status" >&2; exit 1; }
test -s "$work/data/petalgarden/GARDENIA.ini"
test -s "$work/data/petalgarden/HOF.mdb"
[ -z "$(ls "$work/usr/bin" | grep -v '^petalgarden$')" ] || { echo "files were written beside the installed program" >&2; exit 1; }
echo "installed tree checked"
