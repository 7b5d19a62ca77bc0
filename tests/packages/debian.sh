#!/usr/bin/env bash
# debian.sh CPACK CONFIG WORK VERSION
# Makes the packages in the folder WORK/built, has lintian look at them, installs them in a fresh root, lets debian_use.sh use
# them there, and removes them, after which nothing of them is left. Needs to be root, or user namespaces.
set -euo pipefail
cpack=$1 config=$2 work=$3 version=$4
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$work/root

fail() {
  echo "debian.sh: $*" >&2
  exit 1
}

# logged NAME COMMAND...: shows what the command says only if it fails.
logged() {
  local name=$1
  shift
  "$@" > "$work/$name.log" 2>&1 || { tail -n 40 "$work/$name.log"; fail "$name"; }
}

in_root() {
  if [ "$(id -u)" -eq 0 ]; then
    env -i PATH=/usr/sbin:/usr/bin LC_ALL=C.UTF-8 chroot "$root" "$@"
  else
    env -i PATH=/usr/sbin:/usr/bin LC_ALL=C.UTF-8 unshare --map-root-user chroot "$root" "$@"
  fi
}

# What dpkg, the linker's cache and programs that run write is not of the packages.
files_in_root() {
  (cd "$root" && find . -path ./var/lib/dpkg -prune -o -path ./var/log -prune -o -path ./var/cache -prune -o \
    -path ./tmp -prune -o -print | sort)
}

rm -rf "$work"
mkdir -p "$work"
logged make "$cpack" --config "$config" -B "$work/built"
packages=("$work/built"/*.deb)
names=$(for package in "${packages[@]}"; do dpkg-deb -f "$package" Package; done | sort | tr '\n' ' ')
[ "$names" = "axm axm-doc libaxm-dev libaxm1 " ] || fail "packages made: $names"
for package in "${packages[@]}"; do
  [ "$(dpkg-deb -f "$package" Version)" = "$version-1" ] || fail "another version: $package"
done
dpkg-deb -I "$(ls "$work"/built/libaxm1_*.deb)" shlibs | grep -q "^libaxm 1 libaxm1 (>= $version" ||
  fail "libaxm1 does not say to whom its libraries belong"

lintian --allow-root --fail-on error "${packages[@]}"

"$here/fresh_root.py" "$root" g++ pkg-config
mknod -m 666 "$root/dev/null" c 1 3 2> /dev/null || : > "$root/dev/null"
in_root ldconfig
files_in_root > "$work/before.txt"
mkdir "$root/tmp/packages"
cp "${packages[@]}" "$here/debian_use.sh" "$here/../../examples/read_fields.expected" "$here/../../examples/select_nodes.expected" \
  "$root/tmp/packages/"
logged install in_root sh -c 'dpkg -i /tmp/packages/*.deb'
logged use in_root sh -x /tmp/packages/debian_use.sh "$version"
logged remove in_root dpkg --purge axm-doc libaxm-dev
in_root dpkg --purge libaxm1 2> /dev/null && fail "libaxm1 can be removed while axm is installed"
logged remove in_root dpkg --purge axm libaxm1
files_in_root | diff "$work/before.txt" - || fail "something is left (>) or has gone (<)"
rm -rf "$root"
