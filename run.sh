#!/usr/bin/env bash
# Installs what is missing, builds the editor with the programs for authors of catalogs, and opens
# it. Without a display it drives the editor's window through a whole army instead and leaves
# pictures of it.
cd "$(dirname "$0")"
source tools/set-up

targets=(tarnwick guide check-catalog contact-sheet)
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  need run
  build run "${targets[@]}"
  say "Opening the editor; armies are saved in $PWD/program"
  exec program/tarnwick
fi
need run display
build run "${targets[@]}"
say "No display: driving the window through a whole army"
exec xvfb-run -a build/release/tools/tour data build/tour
