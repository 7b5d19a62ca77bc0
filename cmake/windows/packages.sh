#!/usr/bin/env bash
# Installs what building for Windows and running in Wine need on Debian 12, where something of it is missing.
set -euo pipefail

packages=(g++ cmake ninja-build g++-mingw-w64-x86-64-posix wine wine64 googletest libcli11-dev dpkg-dev util-linux)

missing=()
for package in "${packages[@]}"; do
  [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
[ "$(id -u)" = 0 ] || as_root=(sudo)
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
