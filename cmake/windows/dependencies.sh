#!/usr/bin/env bash
# Makes what the house depends on for Windows, once: GoogleTest from Debian's source, and the headers of
# CLI11. Everything lands in the folder AXM_WINDOWS_PREFIX (default: ~/.cache/axm/windows), outside the source tree. It
# is made anew when this script or the toolchain file changes.
set -euo pipefail

here=$(cd "$(dirname "$0")" && pwd)
toolchain=$here/../toolchains/mingw-w64.cmake
prefix=${AXM_WINDOWS_PREFIX:-$HOME/.cache/axm/windows}
mkdir -p "$prefix"

exec 9> "$prefix.lock"
flock 9
recipe=$(cat "$0" "$toolchain" | sha256sum)
[ "$(cat "$prefix/recipe" 2>/dev/null)" != "$recipe" ] || exit 0
rm -rf "$prefix"
mkdir -p "$prefix"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

build()
{
  local source=$1
  shift
  cmake -S "$source" -B "$work/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX="$prefix" "$@" > "$work/log" 2>&1 &&
    cmake --build "$work/build" >> "$work/log" 2>&1 &&
    cmake --install "$work/build" >> "$work/log" 2>&1 ||
    { tail -40 "$work/log" >&2; return 1; }
  rm -rf "$work/build"
}


echo "Building what axm depends on for Windows, once, in $prefix ..." >&2
mkdir -p "$prefix/include" "$prefix/share/cmake"
cp -r /usr/include/CLI "$prefix/include/"
cp -r /usr/share/cmake/CLI11 "$prefix/share/cmake/"
cp -r /usr/include/nlohmann "$prefix/include/"
cp -r /usr/share/cmake/nlohmann_json "$prefix/share/cmake/"

build /usr/src/googletest -DBUILD_GMOCK=OFF

echo "$recipe" > "$prefix/recipe"
