#!/usr/bin/env bash
# check_style.sh [FILE...]                  whether the files are laid out as .clang-format says
# check_style.sh --tidy BUILD_FOLDER [FILE...]   whether clang-tidy, as .clang-tidy sets it, finds nothing in the files
#
# Without files, all that git tracks are checked; of clang-tidy, which takes seconds a file, those of the libraries and
# the command. BUILD_FOLDER is a configured one, such as build/developer, for the compiler's arguments; files that are not
# part of that build are passed over. Exit code 0 when all is well, 1 when something was found, 2 when a tool is missing.
set -u

tidy_folder=""
if [ "${1:-}" = --tidy ]; then
  tidy_folder=$(cd "${2:?a build folder}" && pwd) || exit 2
  shift 2
fi
files=()
for file; do files+=("$(realpath "$file")"); done
cd "$(dirname "$0")/.." || exit 2

find_tool() {
  command -v "$1-14" || command -v "$1" || { echo "check_style.sh: there is no $1" >&2; exit 2; }
}

if [ -z "$tidy_folder" ]; then
  tool=$(find_tool clang-format) || exit 2
  [ ${#files[@]} -gt 0 ] || mapfile -t files < <(git ls-files '*.h' '*.cpp')
  printf '%s\0' "${files[@]}" | xargs -0 "$tool" --dry-run -Werror || exit 1
  echo "${#files[@]} files are laid out well"
  exit 0
fi

tool=$(find_tool clang-tidy) || exit 2
[ ${#files[@]} -gt 0 ] ||
  mapfile -t files < <(git ls-files 'containers/*.cpp' 'utilities/*.cpp' 'platform/*.cpp' 'source/*.cpp' 'service/*.cpp' \
    'command/*.cpp')
checked=()
for file in "${files[@]}"; do
  grep -qF "/${file#"$PWD"/}\"" "$tidy_folder/compile_commands.json" && checked+=("$file")
done
[ ${#checked[@]} -gt 0 ] || { echo "check_style.sh: none of the files is part of $tidy_folder" >&2; exit 2; }
printf '%s\0' "${checked[@]}" | xargs -0 -n 1 -P "$(nproc)" "$tool" --quiet -p "$tidy_folder" 2> /dev/null || exit 1
echo "clang-tidy finds nothing in ${#checked[@]} files"
