# Sourced after cmake/setup.sh, in the top folder: builds everything with the other compilers, standard libraries and kinds
# of library that the house promises, warnings as errors, each into a folder of its own: build/ and one of ${variants[@]}.

packages_for_portability=(clang-14 clang-19 libc++-19-dev libc++abi-19-dev libgtest-dev)

# build_variant NAME [CMAKE ARGUMENT...]
variants=()
build_variant() {
  local name=portability/$1 log=build/portability/$1.log
  shift
  mkdir -p build/portability
  [ -f "build/$name/build.ninja" ] || echo "Building ($name); the log is $log ..." >&2
  if ! { cmake --preset developer -B "build/$name" -DAXM_CHECK_ABI=OFF -DAXM_DEBIAN_PACKAGES=OFF "$@" && cmake --build "build/$name"; } \
    > "$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "Building ($name) failed; the whole log is $log." >&2
    return 1
  fi
  variants+=("$name")
}

# The test framework for another standard library: a library for it is not to be had.
build_googletest_with_libcxx() {
  local folder=build/portability/googletest-libc++
  [ ! -f "$folder/done" ] || return 0
  cmake -S /usr/src/googletest -B "$folder/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_GMOCK=OFF \
    -DCMAKE_CXX_COMPILER=clang++-19 -DCMAKE_CXX_FLAGS=-stdlib=libc++ -DCMAKE_INSTALL_PREFIX="$PWD/$folder" > /dev/null
  cmake --build "$folder/build" > /dev/null
  cmake --install "$folder/build" > /dev/null
  touch "$folder/done"
}

install_missing "${packages_to_build[@]}" "${packages_to_test[@]}" "${packages_for_portability[@]}"
build_variant clang-14 -DCMAKE_CXX_COMPILER=clang++-14
build_variant clang-19 -DCMAKE_CXX_COMPILER=clang++-19
# Without the engine: its parser was built with the other standard library.
build_googletest_with_libcxx
build_variant clang-19-libc++ -DCMAKE_CXX_COMPILER=clang++-19 -DCMAKE_CXX_FLAGS=-stdlib=libc++ -DAXM_BUILD_ENGINE=OFF \
  -DGTest_ROOT="$PWD/build/portability/googletest-libc++"
build_variant static -DBUILD_SHARED_LIBS=OFF
