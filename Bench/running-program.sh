#!/usr/bin/env bash
# What the running program takes with the link up and no job, and during a measurement, at normal speed; and its memory
# (proportional set size) beside that of a bare window of the same build type. usage: running-program.sh [SECONDS]
set -euo pipefail
cd "$(dirname "$0")/.."
. Tools/machine.sh
need_packages build desk bench
cmake --preset bench >/dev/null
cmake --build --preset bench --target program-watched zarn-unit bare-window
bin="$PWD/build/bench"
board=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$board"' EXIT
export QT_QPA_PLATFORM=offscreen ZARN_BOARD="$board" ZARN_BENCH_SECONDS="${1:-60}"
mkdir -p "$board/dev"
: >"$board/dev/mmcblk0p1"

"$bin/Bench/bare-window" &
"$bin/SensorUnit/zarn-unit" --link "$board/dev/ttySAC0" --control "$board/unit.ctl" -- "$bin/Bench/program-watched" |
    grep --line-buffered -E '^(processor|program)'
echo "bare window $(grep '^Pss:' "/proc/$!/smaps_rollup" 2>/dev/null || grep '^Pss:' "/proc/$(pgrep -n bare-window)/smaps_rollup")"
