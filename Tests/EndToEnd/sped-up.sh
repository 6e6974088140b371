#!/usr/bin/env bash
# Runs tests of a test program one after another on one board, each in a process of its own beside a sensor unit of its
# own, at twenty times the speed. What the one that runs has printed so far stands in the board's file program.log.
# What a unit's memory has kept, the next one starts with.
# The 200 ms that an answer may take are ten real ones then, and a machine that hesitates for as long loses an exchange.
# So tests that fail and have lost one run again, from a new board on, at most three times; all others fail at once.
# usage: sped-up.sh UNIT PROGRAM TEST...
set -euo pipefail
unit=$1
program=$2
shift 2
export QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=verify_asan_link_order=0
trap 'rm -rf "${ZARN_BOARD:-}"' EXIT

run_all() {
    local test
    for test in "$@"; do
        GTEST_FILTER="$test" faketime -f '+0 x20' "$unit" --link "$ZARN_BOARD/dev/ttySAC0" --control "$ZARN_BOARD/unit.ctl" \
            --state "$ZARN_BOARD/unit.state" -- "$program" | tee "$ZARN_BOARD/program.log" || return 1
    done
}

for try in 1 2 3; do
    ZARN_BOARD=$(mktemp -d /tmp/zarn-e2e-XXXXXX)
    export ZARN_BOARD
    mkdir -p "$ZARN_BOARD/dev"
    run_all "$@" && exit 0
    grep -aq 'No response for message' "$ZARN_BOARD/program.log" || exit 1
    echo "Try $try has failed and had lost an exchange."
    rm -rf "$ZARN_BOARD"
done
exit 1
