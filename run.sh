#!/usr/bin/env bash
# Installs what is missing, builds the editor and opens it. Without a display it drives the
# editor's window through a whole army instead and leaves pictures of it.
cd "$(dirname "$0")"
source tools/set-up

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  need run
  build run tarnwick guide
  say "Opening the editor; armies are saved in $PWD/program"
  exec program/tarnwick
fi
need run display
build run tarnwick tour
say "No display: driving the window through a whole army"
exec xvfb-run -a build/release/tools/tour data build/tour
