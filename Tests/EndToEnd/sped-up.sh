#!/usr/bin/env bash
# Runs tests of a test program one after another on one board, each in a process of its own beside a sensor unit of its
# own, at twenty times the speed. What the one that runs has printed so far stands in the board's file program.log.
# What a unit's memory has kept, the next one starts with.
# usage: sped-up.sh UNIT PROGRAM TEST...
set -euo pipefail
unit=$1
program=$2
shift 2
ZARN_BOARD=$(mktemp -d /tmp/zarn-e2e-XXXXXX)
trap 'rm -rf "$ZARN_BOARD"' EXIT
mkdir -p "$ZARN_BOARD/dev"
export ZARN_BOARD QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=verify_asan_link_order=0
for test in "$@"; do
    GTEST_FILTER="$test" faketime -f '+0 x20' "$unit" --link "$ZARN_BOARD/dev/ttySAC0" --control "$ZARN_BOARD/unit.ctl" \
        --state "$ZARN_BOARD/unit.state" \
        -- "$program" | tee "$ZARN_BOARD/program.log"
done
