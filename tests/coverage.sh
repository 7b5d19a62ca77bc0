#!/usr/bin/env bash
# coverage.sh [CTEST ARGUMENT...]: which lines and branches of the libraries the tests run. Builds the preset coverage, runs
# the tests (all, or those that ctest's arguments choose), and writes a row for each folder; what nobody ran goes to
# build/coverage/not_run.txt, a line for each place, in which "line" or "branch" says what did not run. Places that no test
# can reach stand in tests/coverage_left.txt with the reason; they count as the others and come last.
#   AXM_COVERAGE_ONLY=1 coverage.sh   only counts again what has run since the build
# The fuzz targets alone, over what is kept of them: coverage.sh --fresh -R FuzzSeeds
# Branches are those that gcov tells but for what exceptions and assertions make of them (tests/coverage.py).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source cmake/setup.sh

if [ "${1-}" = --fresh ]; then
  shift
  find build/coverage -name '*.gcda' -delete
fi
if [ -z "${AXM_COVERAGE_ONLY-}" ]; then
  install_missing "${packages_to_build[@]}" "${packages_to_test[@]}"
  build_preset coverage
  # Tests that bound the size of files bound that of the counts, too; what is said of those is not theirs.
  export GCOV_ERROR_FILE=/dev/null
  ctest --test-dir build/coverage -j "$(nproc)" --output-on-failure --progress --no-tests=error "$@" || true
fi
python3 tests/coverage.py build/coverage containers utilities platform source service
