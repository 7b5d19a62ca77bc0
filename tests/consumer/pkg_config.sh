#!/usr/bin/env bash
# pkg_config.sh PKG_CONFIG LIBRARIES WORK VERSION COMPILER [FLAG...]
# Compiles and runs programs with what pkg-config says of the libraries installed in the folder LIBRARIES.
set -euo pipefail
shopt -s inherit_errexit
pkg_config=$1 libraries=$2 work=$3 version=$4
shift 4
sources=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
examples=$sources/../../examples
export PKG_CONFIG_LIBDIR=$libraries/pkgconfig

for package in axm axs axm-ap axm-ut axm-co; do
  "$pkg_config" --validate "$package"
  found=$("$pkg_config" --modversion "$package")
  [ "$found" = "$version" ] || { echo "$package has version $found, not $version"; exit 1; }
done

# build PACKAGE SOURCE PROGRAM COMPILER [FLAG...]
build() {
  local package=$1 source=$2 program=$3 options
  shift 3
  options=$("$pkg_config" --cflags --libs "$package")
  # shellcheck disable=SC2086
  "$@" "$source" -o "$program" $options "-Wl,-rpath,$libraries"
}

mkdir -p "$work"
build axm "$examples/read_fields.cpp" "$work/read_fields" "$@"
build axs "$sources/find_engine/engine.cpp" "$work/engine" "$@"
(cd "$examples" && "$work/read_fields" books.xml) | diff - "$examples/read_fields.expected"
"$work/engine" | diff - <(echo example.xsd)
