#!/usr/bin/env bash
# Builds the benchmarks and runs them one after the other, each beside other libraries: under ten minutes on two cores
# where the build stands.
#   benchmarks/run.sh CALLER [--output RESULTS] [FOLDER]
# FOLDER holds documents, *.xml; without it, the benchmarks make theirs. The tables and plots go to RESULTS, by default
# build/benchmark/results/. Both are relative to the folder CALLER.
set -euo pipefail
caller=$1
shift
usage() {
  echo "usage: ./run bench [--output RESULTS] [FOLDER]" >&2
  exit 2
}
results=
folder=
while [ $# -gt 0 ]; do
  case $1 in
  --output) [ $# -gt 1 ] && results=$2 && shift || usage ;;
  -*) usage ;;
  *) [ -z "$folder" ] && folder=$1 || usage ;;
  esac
  shift
done

cd "$(dirname "${BASH_SOURCE[0]}")/.."
top=$(pwd)
source cmake/setup.sh
documents=()
if [ -n "$folder" ]; then
  folder=$(cd "$caller" && cd "$folder" && pwd)
  documents=("$folder"/*.xml)
  [ -f "${documents[0]}" ] || { echo "There is no document, *.xml, in $folder." >&2; exit 2; }
fi
[ -n "$results" ] && results=$(cd "$caller" && mkdir -p "$results" && cd "$results" && pwd) || results=$top/build/benchmark/results

programs=$top/build/benchmark/bin
steps=5
[ -z "$folder" ] || steps=6
number=0
status=0
SECONDS=0

# step WHAT COMMAND...
step() {
  local what=$1
  shift
  number=$((number + 1))
  printf '\n== step %d of %d, after %d:%02d: %s\n\n' "$number" "$steps" $((SECONDS / 60)) $((SECONDS % 60)) "$what"
  "$@" || status=1
}

build() {
  install_missing "${packages_to_build[@]}" "${packages_to_benchmark[@]}" && build_preset benchmark
}

# with_table NAME COMMAND...: the command's output is its table.
with_table() {
  local name=$1
  shift
  "$@" | tee "$results/$name.txt"
}

step "building what is not built" build
[ "$status" -eq 0 ] || exit 1
mkdir -p "$results"
# The programs write documents where they stand.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'exit 130' INT TERM
cd "$work"
export TMPDIR=$work

step "fields out of documents, with streaming readers" \
  "$programs/bench_reader" ${folder:+"$folder"} --runs 5 --output "$results/reader"
if [ -n "$folder" ]; then
  step "rows out of documents" "$programs/bench_rows" "$folder" --runs 5 --output "$results/rows"
fi
step "loading documents" with_table load "$programs/load_benchmark" --rounds 7 "${documents[@]}"
step "documents: load, search, change, save" \
  "$programs/document_benchmark" --megabytes 20 --rounds 3 --output "$results/document" "${documents[@]}"
step "validation" with_table validation "$programs/validation_benchmark" --rounds 3 --records 40000 --axm "$programs/axm"

printf '\nIn %d:%02d. The tables and plots are in %s.\n' $((SECONDS / 60)) $((SECONDS % 60)) "$results"
exit $status
