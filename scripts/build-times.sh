#!/usr/bin/env bash
# Prints the ten slowest files of the last build of a preset (default: default), by the compile
# times ninja recorded, with the wall seconds each took.
# Usage: scripts/build-times.sh [preset] [count]
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-default}
count=${2:-10}
log=build/$preset/.ninja_log
[ -f "$log" ] || { echo "no build of preset '$preset' yet ($log)" >&2; exit 1; }
# A later line for an output supersedes an earlier one: keep the last build of each file.
awk -F'\t' 'NR > 1 && $4 ~ /\.o$/ { time[$4] = ($2 - $1) / 1000 }
            END { for (f in time) printf "%7.1f s  %s\n", time[f], f }' "$log" |
  sed 's|CMakeFiles/[^/]*\.dir/||' | sort -rn | head -n "$count"
