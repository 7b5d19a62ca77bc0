#!/usr/bin/env bash
# Builds the fuzz targets and runs each of them for a while over the seeds in fuzz/seeds.
#   fuzz/run.sh [SECONDS_EACH]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source cmake/setup.sh

install_missing "${packages_to_build[@]}" clang libclang-rt-14-dev
build_preset fuzz
for target in reader walk document validation xpath scanner pattern schema; do
  corpus=build/fuzz/corpus_$target
  mkdir -p "$corpus"
  build/fuzz/bin/fuzz_$target -max_total_time="${1-60}" -timeout=20 -rss_limit_mb=4096 -dict=fuzz/xml.dict \
    -artifact_prefix="$corpus-" "$corpus" fuzz/seeds
done
