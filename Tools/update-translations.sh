#!/usr/bin/env bash
# Brings the translation sources up to the texts of the program. What stays untranslated is marked unfinished.
# With --check it only tells whether the English (UK) one is complete, and changes nothing.
set -euo pipefail
cd "$(dirname "$0")/.."
lupdate=${LUPDATE:-/usr/lib/qt6/bin/lupdate}

if [ "${1:-}" = --check ]; then
    copy=$(mktemp --suffix=.ts)
    trap 'rm -f "$copy"' EXIT
    cp Trans/transUK.ts "$copy"
    "$lupdate" -silent -no-obsolete -locations none Src -ts "$copy"
    if grep -B1 'type="unfinished"' "$copy"; then
        echo "These texts have no English (UK) translation." >&2
        exit 1
    fi
    exit 0
fi
for ts in Trans/trans*.ts; do
    "$lupdate" -silent -no-obsolete -locations none Src -ts "$ts"
done
