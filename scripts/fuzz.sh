#!/usr/bin/env bash
# Runs the fuzz targets for a while: scripts/fuzz.sh [TARGET] [SECONDS]
#   TARGET   DesignFile, RowText, TextRoundTrip or ValueFromString (default: each in turn)
#   SECONDS  how long each runs (default 600)
# The targets are built in the sanitized clang build (the asan preset). New inputs collect in
# build/asan/fuzz/corpus/TARGET beside the seeds of fuzz/corpus/TARGET; a finding is written to
# build/asan/fuzz/findings/ and should become a regression test of the ordinary suite.
set -euo pipefail
cd "$(dirname "$0")/.."

targets=(DesignFile RowText TextRoundTrip ValueFromString)
if [ $# -ge 1 ]; then
  [[ " ${targets[*]} " == *" $1 "* ]] || { echo "unknown target \"$1\"; one of: ${targets[*]}" >&2; exit 2; }
  targets=("$1")
fi
seconds=${2:-600}

scripts/install-deps.sh >/dev/null
cmake --preset asan >/dev/null
cmake --build --preset asan --target "${targets[@]/#/fuzz_}"

mkdir -p build/asan/fuzz/findings
status=0
for target in "${targets[@]}"; do
  echo "== $target for $seconds s"
  mkdir -p "build/asan/fuzz/corpus/$target"
  log="build/asan/fuzz/$target.log"
  "build/asan/fuzz/fuzz_$target" -max_total_time="$seconds" -print_final_stats=1 \
    -artifact_prefix="build/asan/fuzz/findings/$target-" \
    "build/asan/fuzz/corpus/$target" "fuzz/corpus/$target" >"$log" 2>&1 || status=$?
  grep -E '^stat::(number_of_executed_units|average_exec_per_sec|peak_rss_mb)|^(==[0-9]+==ERROR|SUMMARY|artifact_prefix)' "$log" || true
done
exit "$status"
