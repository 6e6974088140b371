#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
. Tools/machine.sh
need_packages build test

# The two threads that meet in the link, under ThreadSanitizer. It comes first, so that the last words are those of the whole.
cmake --preset tsan >/dev/null
cmake --build --preset tsan --target test_link
ctest --test-dir build/tsan -R TavorDev --output-on-failure -j2

cmake --preset test >/dev/null
cmake --build --preset test
ctest --test-dir build/test --output-on-failure -j2 "$@"
