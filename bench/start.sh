#!/usr/bin/env bash
# Compares the time from the start to the first shown window: the editor on the shipped catalogs
# against a program with one empty window. The two take turns, so that whatever else the machine
# does hits both. Aim: a ratio of at most 1.3.
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

# Appends the microseconds that a program takes to the file of its name.
take_time() {
  local name=$1 begin end
  shift
  begin=${EPOCHREALTIME//[^0-9]/}
  "$programs/$name" "$@" 2>"$times/said" || { cat "$times/said" >&2; exit 1; }
  end=${EPOCHREALTIME//[^0-9]/}
  echo $((end - begin)) >>"$times/$name"
}

compare() {
  export QT_QPA_PLATFORM=$1
  local run
  for ((run = -3; run < runs; ++run)); do
    # The first rounds only bring the libraries into memory.
    if ((run == 0)); then rm "$times"/*; fi
    take_time start_empty
    take_time start_editor "$data"
  done
  sort -n "$times/start_empty" >"$times/empty"
  sort -n "$times/start_editor" >"$times/editor"
  paste "$times/empty" "$times/editor" | awk -v platform="$1" '
    { empty[NR] = $1 / 1000; editor[NR] = $2 / 1000 }
    END {
      middle = int((NR + 1) / 2); low = int((NR + 3) / 4); high = NR + 1 - low
      printf "%-9s  empty window %.1f ms (%.1f to %.1f)  editor %.1f ms (%.1f to %.1f)  ratio %.2f\n",
             platform, empty[middle], empty[low], empty[high],
             editor[middle], editor[low], editor[high], editor[middle] / empty[middle]
    }'
  rm "$times"/*
}

echo "Medians of $runs runs, in brackets the middle half of them"
compare offscreen
if [ -n "${DISPLAY:-}" ]; then compare xcb; fi
