#!/usr/bin/env bash
# Runs a test program beside a sensor unit of its own, both at twenty times the speed, on a board of their own.
# usage: sped-up.sh UNIT PROGRAM ARGUMENT...
set -euo pipefail
unit=$1
shift
ZARN_BOARD=$(mktemp -d /tmp/zarn-e2e-XXXXXX)
trap 'rm -rf "$ZARN_BOARD"' EXIT
mkdir -p "$ZARN_BOARD/dev"
export ZARN_BOARD QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=verify_asan_link_order=0
faketime -f '+0 x20' "$unit" --link "$ZARN_BOARD/dev/ttySAC0" --control "$ZARN_BOARD/unit.ctl" -- "$@"
