#!/usr/bin/env bash
# Runs a test program that waits for time-outs at fifty times the speed. usage: sped-up.sh PROGRAM ARGUMENT...
set -euo pipefail
export ASAN_OPTIONS=verify_asan_link_order=0${ASAN_OPTIONS:+:$ASAN_OPTIONS}
exec faketime -f '+0 x50' "$@"
