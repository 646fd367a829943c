#!/usr/bin/env bash
# Installs what is missing, builds the GUI host with what it loads, and starts it on the bundled
# sample design. Arguments go to tarvo-designer (a design file of its own, --module FILE, ...).
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
[ -f build/default/build.ninja ] || cmake --preset default
cmake --build build/default --target tarvo-designer
exec build/default/tarvo-designer "$@"
