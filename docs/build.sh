#!/usr/bin/env bash
# Builds the manual as a static site, build/site/html, with the reference of the public headers and the pages of the command.
# Installs what is missing. Whatever is wrong, a link too, ends it: warnings are errors.
#   docs/build.sh
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source cmake/setup.sh

install_missing "${packages_to_build[@]}" "${packages_for_site[@]}"
build_preset release
site=$PWD/build/site
rm -rf "$site"
mkdir -p "$site/pages"

echo "Reference ..." >&2
cmake --install build/release --prefix "$site/installed" > /dev/null
version=$("$site/installed/bin/axm" --version | sed -n '1s/.* //p')
{
  cat docs/site/Doxyfile
  printf '%s\n' "INPUT=$site/installed/include docs/site/mainpage.dox" "OUTPUT_DIRECTORY=$site/pages" "PROJECT_NUMBER=$version"
} | doxygen -

echo "Pages ..." >&2
python3 tests/docs/pages.py links .
python3 docs/site/prepare.py "$site/installed/bin/axm" "$site"
mkdocs build --quiet --strict --config-file "$site/mkdocs.yml"
python3 docs/site/check_links.py "$site/html"
echo "$site/html/index.html"
