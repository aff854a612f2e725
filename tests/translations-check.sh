#!/usr/bin/env bash
# Every text a person reads has its translation in every language the program carries: lupdate
# reads the sources into a copy of each kept .ts, which must then hold no unfinished message and
# none that the sources no longer have.
#   translations-check.sh LUPDATE SOURCE_DIR FOLDERS... -- LUPDATE_OPTIONS...
set -euo pipefail
lupdate=$1 source=$2
shift 2
folders=()
while [ "$1" != -- ]; do folders+=("$1"); shift; done
shift
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
status=0
for ts in "$source"/assets/i18n/*.ts; do
    copy="$scratch/$(basename "$ts")"
    cp "$ts" "$copy"
    (cd "$source" && "$lupdate" -silent -extensions cpp,h "$@" "${folders[@]}" -ts "$copy" 2>"$scratch/lupdate.log")
    unfinished=$(grep -c 'type="unfinished"' "$copy" || true)
    gone=$(grep -c 'type="vanished"\|type="obsolete"' "$copy" || true)
    echo "$(basename "$ts"): $unfinished unfinished, $gone no longer in the sources"
    if [ "$unfinished" != 0 ] || [ "$gone" != 0 ]; then
        grep -B2 'type="unfinished"\|type="vanished"\|type="obsolete"' "$copy" | grep '<source>' | head -n 20
        status=1
    fi
done
exit $status
