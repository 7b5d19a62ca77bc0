#!/usr/bin/env bash
# mutation.sh [COUNT [SEED [ROOM...]]]: what the conformance suite and our own tests see of faults in the engine. COUNT (400)
# changes of one line each, drawn at random in rooms of service/, are compiled into one library, each behind a number
# (tests/mutation/schemata.py), and put through `axm conform` and, where that sees nothing, through the tests of the room
# (tests/mutation/run.py). The same SEED (1) draws the same changes of the same sources.
#
# All is in build/mutation: the changed sources, the build of them, results/ with what came of each change. A run that was
# interrupted is taken up by the command again. The table, with what nobody sees first, goes to build/mutation/table.txt:
#
#   suite, tests or nobody | FILE:LINE | the line as it was => as it is | the first check or test that failed
#
# Only what the suite can see counts for it: a change is left out of its share when it shows in words, places of errors in
# words, times, or classes of the engine that are no part of the contract; tests/mutation/out_of_sight.txt names those,
# each with its reason. Take your time: an hour on two idle cores.
#
# mutation.sh --libraries [COUNT [SEED]]: what our own tests see of changes to the support libraries and the simple reader
# (tests/mutation/run_own.py). All is in build/mutation_libraries, the table as well, without the share of the suite.
set -euo pipefail

of_libraries=
[ "${1-}" != --libraries ] || { of_libraries=1; shift; }
count=${1:-400}
seed=${2:-1}
shift $(($# < 2 ? $# : 2))
rooms=("$@")
[ ${#rooms[@]} -gt 0 ] || rooms=(dom tree writing xpath engine parser validation text)
root=$(git -C "$(dirname "$0")" rev-parse --show-toplevel)
folder=$root/build/mutation${of_libraries:+_libraries}
copy=$folder/source
build=$copy/build/developer
suite=$folder/suite
programs=(tree_test text_test xpath_test validation_test parser_test service_test)

run_on_libraries() {
  local programs=(co_test co_memory_test ut_test ut_memory_test ap_test ap_memory_test reader_test reader_parts_test reader_memory_test reader_model_test)
  if [ ! -d "$folder/results" ]; then
    rm -rf "$copy"
    mkdir -p "$copy"
    git -C "$root" archive HEAD | tar -x -C "$copy"
    cmake -S "$copy" --preset developer > "$folder/configure.log"
    python3 "$root/tests/mutation/schemata.py" draw "$copy" "$count" "$seed" platform utilities source/reader 'containers/*.h'
    cp "$root/tests/mutation/axmMutant.h" "$copy/containers/"
    build_changes "$copy" "${programs[@]}"
  fi
  LOCPATH=$build/locales python3 "$root/tests/mutation/run_own.py" "$copy" "$folder/results" "${programs[@]/#/$build/bin/}"
  python3 "$root/tests/mutation/table.py" "$folder/results" "$root/tests/mutation/out_of_sight.txt" > "$folder/table.txt"
  tail -4 "$folder/table.txt"
}

make_sources() {
  mkdir -p "$copy"
  git -C "$root" archive HEAD | tar -x -C "$copy"
  cp "$root/tests/mutation/axmMutant.h" "$copy/service/text/"
  cmake -S "$copy" --preset developer > "$folder/configure.log"
  # The suite and the engine as they are.
  cmake --build "$build" --target axm_command > "$folder/build.log" 2>&1 || { tail -20 "$folder/build.log"; exit 1; }
  mkdir -p "$suite"
  cp "$build/bin/axm" "$build"/lib/lib{co,ut,ap,axm}.so.* "$suite/"
  python3 "$root/tests/mutation/schemata.py" draw "$copy/service" "$count" "$seed" "${rooms[@]}"
}

# build_changes SOURCES TARGET...: what the compiler refuses is taken out until it refuses nothing.
build_changes() {
  local sources=$1
  shift
  until cmake --build "$build" --target "$@" -- -k 0 > "$folder/build.log" 2>&1; do
    taken_out=$(python3 "$root/tests/mutation/schemata.py" mend "$sources" "$folder/build.log")
    [ "$taken_out" -gt 0 ] || { grep error: "$folder/build.log" | head; exit 1; }
  done
}

build_tests() {
  cmake --build "$build" --target "${programs[@]}" > "$folder/build.log" 2>&1 || { tail -20 "$folder/build.log"; exit 1; }
}

if [ -n "$of_libraries" ]; then
  run_on_libraries
  exit
fi
if [ ! -d "$folder/results" ]; then
  rm -rf "$copy" "$suite"
  make_sources
  build_changes "$copy/service" axs
  build_tests
fi
LOCPATH=$build/locales python3 "$root/tests/mutation/run.py" "$copy/service" "$folder/results" "$suite/axm" \
  "$build/lib:$suite" "${programs[@]/#/$build/bin/}"
python3 "$root/tests/mutation/table.py" "$folder/results" "$root/tests/mutation/out_of_sight.txt" > "$folder/table.txt"
tail -4 "$folder/table.txt"
