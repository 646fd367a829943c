#!/usr/bin/env bash
# Prints the CPU seconds (user + system) that compiling a source file costs in a configured build,
# in full and for parsing alone (-fsyntax-only), with the ratio of the two. With --product, it
# does so for every file of the libraries and the inspector (not tests, benchmarks or generated
# files), slowest first. Files are compiled one after another, so run it on a quiet machine.
# Usage: scripts/compile-cost.sh [--preset NAME] (--product | FILE...)
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
preset=default
if [ "${1:-}" = --preset ]; then preset=$2; shift 2; fi
db=build/$preset/compile_commands.json
[ -f "$db" ] || { echo "configure the '$preset' preset first ($db is missing)" >&2; exit 1; }
[ $# -gt 0 ] || { echo "usage: $0 [--preset NAME] (--product | FILE...)" >&2; exit 1; }

# One line per file: the file, then its compile command (a shell command, JSON escapes undone)
# without a compiler launcher and without its own output file.
entries=$(sed -n 's/^  "command": "\(.*\)",$/\1/p; s/^  "file": "\(.*\)"$/FILE \1/p' "$db" |
  awk '/^FILE / { print substr($0, 6) "\t" command; next } { command = $0 }' |
  sed -E 's#\\\\#\x01#g; s#\\"#"#g; s#\x01#\\#g' |
  sed -E 's#\t([^\t]* )?[^ \t]*(ccache|sccache) #\t#; s# -o [^ ]+ # #')

wanted() {
  local file=${1#"$root"/}
  if [ "$selection" = --product ]; then
    [[ $file != tests/* && $file != bench/* && $file != *_autogen/* && $file != build/* ]]
  else
    for name in $selection; do [[ $file == *"$name" ]] && return 0; done
    return 1
  fi
}

cpu() { # CPU seconds of one compile, run from the build folder; cpu COMMAND [EXTRA_FLAG]
  local TIMEFORMAT='%U %S' times
  times=$( { time (cd "build/$preset" && eval "$1 ${2:-} -o /dev/null" > /dev/null 2>&1); } 2>&1) || true
  awk -v t="$times" 'BEGIN { split(t, p, " "); printf "%.2f", p[1] + p[2] }'
}

selection=$*
while IFS=$'\t' read -r file command; do
  wanted "$file" || continue
  full=$(cpu "$command")
  parse=$(cpu "$command" -fsyntax-only)
  awk -v f="${file#"$root"/}" -v a="$full" -v b="$parse" \
    'BEGIN { printf "%6.2f s  %5.2f s parse  %4.1fx  %s\n", a, b, (b > 0 ? a / b : 0), f }'
done <<< "$entries" | sort -rn
