#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
. Tools/machine.sh
need_packages build test
cmake --preset test >/dev/null
cmake --build --preset test
ctest --test-dir build/test --output-on-failure -j2 "$@"
