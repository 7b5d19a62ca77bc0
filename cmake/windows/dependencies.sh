#!/usr/bin/env bash
# Makes what the house depends on for Windows, once: GoogleTest and Xerces-C from Debian's source, and the headers of
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

# Where this system gets its packages; nothing while it has not been asked yet.
package_sources()
{
  apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Origin: Debian' 'Created-By: Packages' |
    sort -u
}

# The system's own lists are left alone: they need not have sources.
fetch_source()
{
  local apt=(apt-get -q -o Dir::Etc::sourcelist="$work/apt/sources.list" -o Dir::Etc::sourceparts=-
    -o Dir::State::lists="$work/apt/lists" -o Dir::Cache="$work/apt/cache" -o APT::Sandbox::User=root)
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  [ -n "$(package_sources)" ] || "${as_root[@]}" apt-get -qq update >&2
  mkdir -p "$work/apt/lists/partial" "$work/apt/cache/archives/partial"
  package_sources > "$work/apt/sources.list"
  "${apt[@]}" update > "$work/log" 2>&1 && (cd "$work" && "${apt[@]}" source "$1" >> "$work/log" 2>&1) ||
    { tail -20 "$work/log" >&2; return 1; }
}

echo "Building what axm depends on for Windows, once, in $prefix ..." >&2
mkdir -p "$prefix/include" "$prefix/share/cmake"
cp -r /usr/include/CLI "$prefix/include/"
cp -r /usr/share/cmake/CLI11 "$prefix/share/cmake/"

build /usr/src/googletest -DBUILD_GMOCK=OFF

fetch_source xerces-c
# The library alone: its tests, samples and pages double the time and not all of them build here.
sed -i -E '/^ *add_subdirectory\((doc|tests|samples)\)/d' "$work"/xerces-c-*/CMakeLists.txt
build "$(echo "$work"/xerces-c-*/)" -Dnetwork=OFF -Dtranscoder=windows -Dmessage-loader=inmemory

echo "$recipe" > "$prefix/recipe"
