#!/bin/sh
# debian_use.sh VERSION: what somebody does who has installed the packages; run in the fresh root.
set -eu
documents=/usr/share/doc/axm
cd /tmp

[ -z "$(dpkg --audit)" ]
[ "$(axm --version | head -n 1)" = "axm $1" ]
axm table $documents/examples/books.xml catalog/book @id title | grep -q "Die Verwandlung"
axm check --no-namespace-schema $documents/examples/stations.xsd $documents/examples/stations.xml

for page in axm axm-table axm-set; do
  gzip -dc /usr/share/man/man1/$page.1.gz | grep -q "^\.TH"
done
for file in bash-completion/completions/axm zsh/site-functions/_axm fish/vendor_completions.d/axm.fish; do
  [ -s /usr/share/$file ]
done
for package in libaxm1 libaxm-dev axm axm-doc; do
  grep -q "No licence has been chosen" /usr/share/doc/$package/copyright
done
[ -s $documents/README.md ]

g++ $documents/examples/read_fields.cpp -o read_fields $(pkg-config --cflags --libs axm)
(cd $documents/examples && /tmp/read_fields books.xml) | diff - packages/read_fields.expected
g++ $documents/examples/select_nodes.cpp -o select_nodes $(pkg-config --cflags --libs axs)
(cd $documents/examples && /tmp/select_nodes books.xml "//book[year > 1890]/title") | diff - packages/select_nodes.expected
