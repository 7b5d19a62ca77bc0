# Sourced by ./run and ./test: installs Debian packages that are missing and builds a preset, quietly unless it fails.

# install_missing PACKAGE...
install_missing() {
  local missing=() package
  for package; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing ${missing[*]} ..." >&2
  "${as_root[@]}" apt-get -qq update >&2 &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get -qq install -y --no-install-recommends "${missing[@]}" > /dev/null
}

# build_preset PRESET [TARGET...]
# The output goes to build/PRESET.log, of which the end is shown when something fails.
build_preset() {
  local preset=$1 log=build/$1.log
  shift
  mkdir -p build
  [ -f "build/$preset/build.ninja" ] || echo "Building ($preset); the log is $log ..." >&2
  if ! { cmake --preset "$preset" && cmake --build "build/$preset" ${@:+--target "$@"}; } > "$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "Building ($preset) failed; the whole log is $log." >&2
    return 1
  fi
}

packages_to_build=(g++ cmake ninja-build libcli11-dev zlib1g-dev liblzma-dev libzstd-dev nlohmann-json3-dev)
packages_to_test=(libgtest-dev locales libxml2-dev libexpat1-dev libxerces-c-dev abigail-tools clang clang-format-14
  g++-mingw-w64-x86-64-posix python3 python3-distributed mandoc zsh fish lintian pkg-config)
# For cpack.
packages_to_pack=(dpkg-dev file)
packages_to_test+=("${packages_to_pack[@]}")
# The manual's programs and commands of other libraries and tools.
packages_to_test+=(libpugixml-dev libxerces-c-dev libtinyxml2-dev qtbase5-dev libxml2-utils xmlstarlet xq yq)
# Whoever has npm from elsewhere keeps it.
command -v npm > /dev/null || packages_to_test+=(npm)
# For docs/build.sh.
packages_for_site=(mkdocs mkdocs-material doxygen mandoc python3)
packages_to_benchmark=(libxerces-c-dev libpugixml-dev librapidxml-dev libexpat1-dev libxml2-dev libxml2-utils)
