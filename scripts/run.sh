#!/usr/bin/env bash
# Installs what is missing, builds, and runs the main job: the headless inspector on the bundled
# sample design, with the two signal generators selected.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake --preset default
cmake --build --preset default --target tarvo-inspect
build/default/tarvo-inspect --select Generator1,Generator2 "$@"
