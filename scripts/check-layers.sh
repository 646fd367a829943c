#!/usr/bin/env bash
# Checks that no include reaches upward across the layers of the code: a file may include files of
# its own layer and of the layers below it. Prints each offending include and fails if there is one.
set -euo pipefail
cd "$(dirname "$0")/.."

# The layers, lowest first. A folder not listed (tests, bench, fuzz) may include anything.
layers=(
  rtl
  containers
  reflection
  runtime
  "platform samples"
  design
  design/paint
  forms
  design/editors
  design/components
  collections
  graphics
  package
  host/grid
  host/headless
  host/designer
  host
)

declare -A rank
for i in "${!layers[@]}"; do
  for folder in ${layers[$i]}; do rank[$folder]=$i; done
done

# The layer of a path: its longest listed folder prefix.
layer_of() {
  local path=$1 best=""
  for folder in "${!rank[@]}"; do
    if [[ $path == "$folder"/* && ${#folder} -gt ${#best} ]]; then best=$folder; fi
  done
  echo "$best"
}

status=0
while IFS= read -r file; do
  from=$(layer_of "$file")
  [ -n "$from" ] || continue
  while IFS= read -r included; do
    to=$(layer_of "$included")
    [ -n "$to" ] || continue
    # Samples are a component module: they stand on the runtime alone.
    if [ "${rank[$to]}" -gt "${rank[$from]}" ] || { [ "$from" = samples ] && [ "$to" = platform ]; }; then
      echo "$file includes $included: $from may not reach $to"
      status=1
    fi
  done < <(sed -n 's/^#include "\([^"]*\)".*/\1/p' "$file")
done < <(git ls-files --cached --others --exclude-standard '*.h' '*.cpp')

[ $status -eq 0 ] && echo "Layers: no include reaches upward."
exit $status
