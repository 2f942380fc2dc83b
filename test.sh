#!/usr/bin/env bash
# Installs what is missing, builds the editor with its tests and runs them.
cd "$(dirname "$0")"
source tools/set-up

need run display test
build release
say "Testing"
run_tests release
