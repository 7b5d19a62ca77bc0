#!/usr/bin/env bash
# Builds the benchmarks and runs them: reader and engine, each beside other libraries, in one run.
#   benchmarks/run.sh CALLER [FOLDER]     FOLDER (relative to the folder CALLER) holds documents, *.xml; the benchmarks
#                                         generate others, for the reader always, for the engine where there is no folder
# Tables and plots are written to build/benchmark/results/.
set -euo pipefail
caller=$1
folder=${2-}
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source cmake/setup.sh

install_missing "${packages_to_build[@]}" "${packages_to_benchmark[@]}"
build_preset benchmark

if [ -n "$folder" ]; then
  folder=$(cd "$caller" && cd "$folder" && pwd)
fi
results=build/benchmark/results
mkdir -p "$results"
status=0
build/benchmark/bin/bench_reader ${folder:+"$folder"} --output "$results/reader" || status=1
if [ -n "$folder" ]; then
  build/benchmark/bin/bench_rows "$folder" --output "$results/rows" || status=1
fi
documents=()
[ -z "$folder" ] || documents=("$folder"/*.xml)
build/benchmark/bin/document_benchmark --output "$results/document" "${documents[@]}" || status=1
build/benchmark/bin/validation_benchmark | tee "$results/validation.txt" || status=1
echo "The tables and plots are in $results/."
exit $status
