#!/usr/bin/env bash
# check.sh PYTHON AXM FOLDER: holds what the cluster takes out of a document against what the command does alone.
set -euo pipefail
python=$1
axm=$2
here=$(cd "$(dirname "$0")" && pwd)
cd "$3"
# A sanitizer in the command's libraries is no matter of Python's.
unset LD_PRELOAD

{
  echo '<map xmlns:x="urn:x">'
  for i in $(seq 20000); do echo "<node id='$i' x:k='&lt;$i'><tag>text $i</tag></node>"; done
  echo '</map>'
} > cluster.xml
"$axm" table cluster.xml map/node @id @x:k tag > alone.csv
"$python" "$here/extract.py" "$axm" cluster.xml map/node @id @x:k tag --parts 12 --output cluster.csv --kill-a-worker
cmp alone.csv cluster.csv
[ "$(wc -l < cluster.csv)" -eq 20000 ]
