#!/usr/bin/env bash
# Installs from Debian the packages the build needs, and only those that are missing.
set -euo pipefail

packages=(cmake ninja-build g++ clang libclang-rt-14-dev pkg-config libgtest-dev libgmock-dev libbenchmark-dev qt6-base-dev nlohmann-json3-dev ccache fonts-dejavu-core)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ ${#missing[@]} -eq 0 ]; then
  echo "All build dependencies are installed."
  exit 0
fi

echo "Installing: ${missing[*]}"
sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
"${sudo_cmd[@]}" apt-get update -q
DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
