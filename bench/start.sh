#!/usr/bin/env bash
# Compares the time from the start to the first shown window: the editor on the shipped catalogs
# against a window with one text, which needs the fonts as well, and against an empty one. The three
# take turns, so that whatever else the machine does hits all of them. Aim: at most 1.5 times the
# window with a text.
#
#   bench/start.sh build/release/bench [RUNS]
#
# Runs on the offscreen platform and, when DISPLAY names one, on the X display.
set -euo pipefail
programs=$(cd "$1" && pwd)
runs=${2:-30}
data=$(cd "$(dirname "$0")/../data" && pwd)
times=$(mktemp -d)
trap 'rm -rf "$times"' EXIT

# Appends the microseconds that a program takes to a file: take_time FILE PROGRAM [ARGUMENT]
take_time() {
  local file=$times/$1 begin end
  shift
  begin=${EPOCHREALTIME//[^0-9]/}
  "$programs/$@" 2>"$times/said" || { cat "$times/said" >&2; exit 1; }
  end=${EPOCHREALTIME//[^0-9]/}
  echo $((end - begin)) >>"$file"
}

compare() {
  export QT_QPA_PLATFORM=$1
  local run
  for ((run = -3; run < runs; ++run)); do
    # The first rounds only bring the libraries into memory.
    if ((run == 0)); then rm "$times"/*; fi
    take_time empty start_window
    take_time text start_window "Army Name"
    take_time editor start_editor "$data"
  done
  paste <(sort -n "$times/empty") <(sort -n "$times/text") <(sort -n "$times/editor") |
    awk -v platform="$1" '
    { for (i = 1; i <= 3; ++i) time[i, NR] = $i / 1000 }
    function show(name, i) {
      return sprintf("%s %.1f ms (%.1f to %.1f)", name, time[i, middle], time[i, low], time[i, high])
    }
    END {
      middle = int((NR + 1) / 2); low = int((NR + 3) / 4); high = NR + 1 - low
      printf "%-9s  %s  %s  %s  ratio %.2f\n", platform, show("empty", 1), show("text", 2),
             show("editor", 3), time[3, middle] / time[2, middle]
    }'
  rm "$times"/*
}

echo "Medians of $runs runs, in brackets the middle half of them; the ratio is editor to text"
compare offscreen
if [ -n "${DISPLAY:-}" ]; then compare xcb; fi
