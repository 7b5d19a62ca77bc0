# Sourced after cmake/setup.sh, in the top folder: installs what building for 64-bit Windows and running in Wine need,
# makes what the house depends on there, and builds the preset "windows".

packages_for_windows=(g++-mingw-w64-x86-64-posix wine wine64 libgtest-dev libcli11-dev dpkg-dev python3)

install_missing "${packages_to_build[@]}" "${packages_for_windows[@]}"
cmake/windows/dependencies.sh
build_preset windows
# Wine makes its folder at the first call; here, so that no test has to wait for it.
cmake/windows/wine.sh cmd.exe /c exit
