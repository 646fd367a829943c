#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test: the normal build and the
# AddressSanitizer + UndefinedBehaviorSanitizer build.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh

for preset in default asan; do
  echo "== $preset build"
  cmake --preset "$preset"
  cmake --build --preset "$preset"
  ctest --preset "$preset" -j"$(nproc)"
done
echo "== All tests passed (default and asan)."
