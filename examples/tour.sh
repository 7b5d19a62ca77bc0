#!/usr/bin/env bash
# A short tour of the command axm over the samples of this folder: tour.sh AXM
set -euo pipefail
axm=$1
cd "$(dirname "${BASH_SOURCE[0]}")"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# show TEXT ARGUMENT...: says what comes, shows the command as a user types it, and runs it. What a check finds wrong is
# part of the tour, so its exit code is not an error here.
show() {
  local shown='' argument output
  printf '\n%s\n' "$1"
  shift
  for argument; do
    argument=${argument#"$scratch"/}
    case $argument in *[!A-Za-z0-9@_=./-]*) argument="\"$argument\"" ;; esac
    shown+=" $argument"
  done
  printf '  $ ./run%s\n\n' "$shown"
  output=$("$axm" "$@" 2>&1) || [ $? -eq 1 ]
  printf '%s\n' "${output:-(nothing to say: all is good)}" | sed 's/^/    /'
}

echo "axm at work, on the samples in examples/"

show "Fields out of a file, a row a record:" \
  table books.xml catalog/book @id title author/name year
show "The same as JSON lines, from another document:" \
  table stations.xml network/station @id @lat --format jsonl
show "Is a document well-formed, and valid by a schema?" \
  check books.xml --no-namespace-schema books.xsd
show "One that is not, with the place and the rule:" \
  check books_broken.xml --no-namespace-schema books.xsd
show "What an XPath expression selects:" \
  select books.xml "//book[year < 1900]/title" --text
show "A value changed, and the document saved as another file:" \
  set books.xml "//book[@id = 'b2']" lang=en --output "$scratch/changed.xml"
cd "$scratch"
show "What was changed there:" \
  select changed.xml "//book[@id = 'b2']/@lang"

printf '\nEach verb explains itself: ./run VERB --help\n'
