#!/usr/bin/env bash
# Installs what is missing, builds, and runs the main job.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake --preset default
cmake --build --preset default
echo "The headless inspector (tarvo-inspect) comes with the design core; the runtime it rests on is built."
