#!/usr/bin/env bash
# From process start to the first painted window: the program beside a bare window with as many child widgets, in turns,
# median of so many runs. usage: start-time.sh [RUNS]
set -euo pipefail
cd "$(dirname "$0")/.."
. Tools/machine.sh
need_packages build desk bench
cmake --preset bench >/dev/null
cmake --build --preset bench --target program-first-paint bare-window
bin="$PWD/build/bench/Bench"
board=$(mktemp -d)
trap 'rm -rf "$board"' EXIT
export QT_QPA_PLATFORM=offscreen ZARN_BOARD="$board"
mkdir -p "$board/dev"
: >"$board/dev/mmcblk0p1"

first_paint() { ZARN_STARTED=$(date +%s%N) "$@" 2>/dev/null | sed -n 's/^first paint: //p'; }

widgets=$(first_paint "$bin/program-first-paint" | sed 's/.*, \([0-9]*\) widgets/\1/')
for ((i = 0; i < ${1:-21}; ++i)); do
    echo "program $(first_paint "$bin/program-first-paint")"
    echo "bare $(first_paint "$bin/bare-window" "$widgets")"
done | sort -k1,1 -k2,2n | awk -v widgets="$widgets" '
    { at[$1, n[$1]++] = $2 }
    END {
        p = at["program", int(n["program"] / 2)]; b = at["bare", int(n["bare"] / 2)]
        printf "first paint with %d widgets: program %.1f ms, bare window %.1f ms, ratio %.2f\n", widgets, p / 1000, b / 1000, p / b
    }'
