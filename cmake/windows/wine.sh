#!/usr/bin/env bash
# Runs a Windows program in Wine: wine.sh PROGRAM [ARGUMENT...]
# Its exit status and outputs are the program's. Wine's own folder is AXM_WINE_PREFIX (default: ~/.cache/axm/wine), made
# at the first call.
set -euo pipefail

wine=/usr/lib/wine/wine64
export WINEPREFIX=${AXM_WINE_PREFIX:-$HOME/.cache/axm/wine}
export WINEDEBUG=${WINEDEBUG:--all}
# Without a browser engine and .NET, and without entries in the menus of this system.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
# The C locale cannot name files outside ASCII.
export LC_ALL=C.UTF-8

make_prefix()
(
  mkdir -p "$WINEPREFIX"
  exec 9> "$WINEPREFIX.lock"
  flock 9
  [ ! -e "$WINEPREFIX/made" ] || return 0
  "$wine" wineboot --init > "$WINEPREFIX.log" 2>&1 9>&- || { cat "$WINEPREFIX.log" >&2; return 1; }
  "${wine%/*}/wineserver" -w 9>&-
  # Wine has copied its whole library there; links do, and save hundreds of megabytes.
  local builtin=/usr/lib/x86_64-linux-gnu/wine/x86_64-windows file
  for file in "$builtin"/*; do
    local copy=$WINEPREFIX/drive_c/windows/system32/${file##*/}
    ! cmp -s "$file" "$copy" || ln -sf "$file" "$copy"
  done
  touch "$WINEPREFIX/made"
)
[ -e "$WINEPREFIX/made" ] || make_prefix

windows_folder()
{
  local folder=${1%/*}
  printf '%s' "Z:${folder//\//\\}"
}
compiler=x86_64-w64-mingw32-g++-posix
dependencies=${AXM_WINDOWS_PREFIX:-$HOME/.cache/axm/windows}
WINEPATH="$(windows_folder "$("$compiler" -print-file-name=libstdc++-6.dll)")"
WINEPATH+=";$(windows_folder "$(realpath "$("$compiler" -print-file-name=libwinpthread-1.dll)")")"
export WINEPATH+=";$(windows_folder "$dependencies/bin/")"

# The services that Wine starts along with the first program keep its standard error open: were that a pipe, whoever
# reads it would wait for them.
errors=$(mktemp)
trap 'cat "$errors" >&2; rm -f "$errors"' EXIT
"$wine" "$@" 2> "$errors"
