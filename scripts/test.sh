#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test: the normal build and the
# AddressSanitizer + UndefinedBehaviorSanitizer build. The include layers are checked first.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
scripts/check-layers.sh

for preset in default asan; do
  echo "== $preset build"
  cmake --preset "$preset"
  cmake --build --preset "$preset"
  ctest --preset "$preset" -j"$(nproc)"
done
echo "== All tests passed (default and asan)."
