#!/usr/bin/env bash
# Builds the fuzz targets and runs each of them for a while, as many side by side as there are processors, beginning with
# the inputs in fuzz/seeds and those that earlier runs have found. What goes wrong is said, and its input is kept.
#   fuzz/run.sh [SECONDS_EACH [TARGET...]]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source cmake/setup.sh

seconds=${1-60}
targets=("${@:2}")
[ ${#targets[@]} -gt 0 ] || targets=(reader walk document tree validation xpath scanner pattern schema suite arguments)

install_missing "${packages_to_build[@]}" libxml2-dev clang libclang-rt-14-dev
build_preset fuzz fuzzers

fuzz() {
  local target=$1 folder=$PWD/build/fuzz/$1 seeds=(fuzz/seeds/all)
  [ ! -d "fuzz/seeds/$1" ] || seeds+=("fuzz/seeds/$1")
  mkdir -p "$folder/corpus" "$folder/faults"
  if build/fuzz/bin/fuzz_$target -max_total_time="$seconds" -timeout=20 -rss_limit_mb=4096 -dict=fuzz/xml.dict \
    -artifact_prefix="$folder/faults/" "$folder/corpus" "${seeds[@]}" > "$folder/log" 2>&1; then
    echo "fuzz_$target: $(grep -o 'Done [0-9]* runs' "$folder/log"), nothing found"
  else
    echo "fuzz_$target: a fault; its input is in $folder/faults"
    tail -n 40 "$folder/log"
    return 1
  fi
}
export -f fuzz
export seconds
printf '%s\n' "${targets[@]}" | xargs -P "$(nproc)" -I{} bash -euo pipefail -c 'fuzz {}'
