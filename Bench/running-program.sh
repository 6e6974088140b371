#!/usr/bin/env bash
# What the running program takes while the link is up and no job runs, beside a bare window of the same build type:
# processor time over a minute, and memory that is its own (proportional set size).
set -euo pipefail
cd "$(dirname "$0")/.."
. Tools/machine.sh
need_packages build desk bench
cmake --preset bench >/dev/null
cmake --build --preset bench --target zarn-desk zarn-unit bare-window
bin="$PWD/build/bench"
seconds="${1:-60}"
board=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$board"' EXIT
export QT_QPA_PLATFORM=offscreen ZARN_BOARD="$board"
mkdir -p "$board/dev"

"$bin/SensorUnit/zarn-unit" --link "$board/dev/ttySAC0" --control "$board/unit.ctl" -- "$bin/Src/zarn-desk" >"$board/log" 2>&1 &
"$bin/Bench/bare-window" &
bare=$!
# The preparation at the start of the program has ended by then.
sleep 50
program=$(pgrep -nf "$bin/Src/zarn-desk")

ticks() { awk '{print $14 + $15}' "/proc/$1/stat"; }
pss() { awk '/^Pss:/{print $2}' "/proc/$1/smaps_rollup"; }

before=$(ticks "$program")
sleep "$seconds"
after=$(ticks "$program")
awk -v t=$((after - before)) -v hz="$(getconf CLK_TCK)" -v s="$seconds" -v p="$(pss "$program")" -v b="$(pss "$bare")" 'BEGIN {
    printf "processor time: %.2f %% of one core\n", 100 * t / hz / s
    printf "memory: program %d KiB, bare window %d KiB, ratio %.2f\n", p, b, p / b
}'
