#!/usr/bin/env bash
# baseline.sh check: compares what binaries rely on with what was promised to them, the files in baseline/ and exports/.
# baseline.sh renew: makes those files anew. They belong to the released version: renewing them is a break with binaries
# that exist, and needs an entry in CHANGELOG.md that says so and bears the number that this command prints.
#
# The libraries are built for it with a compiler and flags of their own, so that the result does not depend on how the
# rest is built. BUILD_FOLDER (default: build/abi) is where.
set -euo pipefail

here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
build=${BUILD_FOLDER:-$root/build/abi}
libraries=(co ut ap axm axs)

build_libraries()
{
  cmake -S "$root" -B "$build" -G Ninja -DCMAKE_CXX_COMPILER=g++-12 -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS= \
    -DBUILD_SHARED_LIBS=ON -DAXM_BUILD_COMMAND=OFF > "$build.log" 2>&1 &&
    cmake --build "$build" >> "$build.log" 2>&1 &&
    cmake --install "$build" --prefix "$build/installed" >> "$build.log" 2>&1 ||
    { tail -40 "$build.log"; return 1; }
}

# abidw LIBRARY OUTPUT: what a binary relies on, without anything that depends on where and when it was built.
describe()
{
  local binary=$build/lib/lib$1.so
  # Without debug information the description is empty, and equals every other empty one.
  if ! readelf -S "$binary" | grep '\.debug_info' > /dev/null; then
    echo "$binary has no debug information"
    return 1
  fi
  abidw --no-show-locs --short-locs --no-corpus-path --no-comp-dir-path --no-elf-needed --no-parameter-names \
    --type-id-style hash --drop-undefined-syms --exported-interfaces-only --drop-private-types \
    --headers-dir "$build/installed/include/axm" "$binary" --out-file "$2"
  # A class that slips out of the description could change unseen.
  local class
  for class in $(sed -n -E 's/^class [A-Z]+_API (\w+).*/\1/p' "$build/installed/include/axm/$1"/*.h); do
    if ! grep -q "<class-decl name='$class' size-in-bits" "$2"; then
      echo "$class of $1 is not described"
      return 1
    fi
  done
}

export_list()
{
  local tool=$1 binary=$2 library=$3
  local major
  major=$(sed -n -E 's/^project\(axm VERSION ([0-9]+).*/\1/p' "$root/CMakeLists.txt")
  python3 "$here/exports.py" --renew "$tool" "$binary" "$major" "$here/exports/$library.txt" \
    "$build"/installed/include/axm/*/*.h
}

# The number that stands for one state of the promises.
fingerprint()
{
  (cd "$here" && cat slots.txt baseline/*.abi exports/*.txt | sha256sum | cut -c1-12)
}

check()
{
  local library failed=0
  for library in "${libraries[@]}"; do
    describe "$library" "$build/$library.abi" || { failed=1; continue; }
    # Of the statuses only 0 means that nothing differs.
    abidiff "$here/baseline/$library.abi" "$build/$library.abi" || { echo "$library differs from its baseline"; failed=1; }
  done
  if ! grep -q "$(fingerprint)" "$root/CHANGELOG.md"; then
    echo "CHANGELOG.md has no entry for this baseline, ABI $(fingerprint)"
    failed=1
  fi
  return $failed
}

renew()
{
  mkdir -p "$here/baseline" "$here/exports"
  cd "$root"
  source cmake/setup.sh
  install_missing "${packages_to_test[@]}"
  source cmake/windows/setup.sh
  local library
  for library in "${libraries[@]}"; do
    describe "$library" "$here/baseline/$library.abi"
    export_list objdump "$build/lib/lib$library.so" "$library"
    export_list x86_64-w64-mingw32-objdump "$(echo "$root/build/windows/bin/lib$library"-*.dll)" "$library"
  done
  echo "Say in CHANGELOG.md what this changes for programs and engines that exist, with the words: ABI $(fingerprint)"
}

mkdir -p "$build"
case ${1:-} in
  check | renew) build_libraries && "$1" ;;
  *) echo "usage: baseline.sh check|renew"; exit 2 ;;
esac
