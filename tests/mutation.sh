#!/usr/bin/env bash
# mutation.sh [COUNT [SEED]]: what the tests see of faults in the engine. Changes one line of service/ at random, COUNT
# times (default 20), each in a copy of the sources under build/mutation; builds it, puts it through `axm conform` and
# through the tests, and writes a row for each:
#
#   NUMBER | FILE:LINE | suite: yes, no | tests: yes, no | the line as it was => as it is
#
# Lines that do not compile are drawn again. The same SEED (default 1) draws the same lines of the same sources. The table
# goes to build/mutation/table.txt, too; what nobody sees is to be looked at by hand. TESTS is what ctest is to run, as
# its option -R has it (default: everything of the engine).
set -euo pipefail

count=${1:-20}
seed=${2:-1}
tests=${TESTS:-'service|parser_test|tree_test|xpath|text_test|writing|schema|validation|engine'}
root=$(git -C "$(dirname "$0")" rev-parse --show-toplevel)
folder=$root/build/mutation
copy=$folder/source
table=$folder/table.txt

mkdir -p "$folder"
rm -rf "$copy"
git -C "$root" worktree prune
mkdir "$copy"
git -C "$root" archive HEAD | tar -x -C "$copy"
cmake -S "$copy" --preset developer > "$folder/configure.log"
build() { cmake --build "$copy/build/developer" > "$folder/build.log" 2>&1; }
build || { tail -20 "$folder/build.log"; exit 1; }
: > "$table"

# What is seen of the present build: a run that fails or takes too long.
suite_sees() { ! timeout 600 "$copy/build/developer/bin/axm" conform > "$folder/conform.log" 2>&1; }
tests_see() { ! timeout 1800 ctest --test-dir "$copy/build/developer" -R "$tests" --timeout 120 --stop-on-failure > "$folder/ctest.log" 2>&1; }

number=0
draw=0
while [ "$number" -lt "$count" ]; do
  draw=$((draw + 1))
  change=$(python3 "$root/tests/mutation.py" "$copy/service" "$seed" "$draw")
  [ -n "$change" ] || continue
  file=$copy/service/${change%%:*}
  if build; then
    number=$((number + 1))
    suite=no
    seen=no
    suite_sees && suite=yes
    tests_see && seen=yes
    echo "$number | $change | suite: $suite | tests: $seen" | tee -a "$table"
  fi
  mv "$file.original" "$file"
  touch "$file"
done

awk -F'|' '
  { seen = /suite: yes/ || /tests: yes/; all += seen; suite += /suite: yes/; none += !seen }
  END { printf "%d mutants seen at all, of these %d by the suite; %d seen by nobody\n", all, suite, none }
' "$table"
