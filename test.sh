#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests.
cd "$(dirname "$0")"
source tools/set-up

need_to_test
build release
say "Testing"
ctest --preset release
