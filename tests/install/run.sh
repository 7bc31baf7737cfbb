#!/usr/bin/env bash
# Installs a build, from its tree or from its Debian packages, into a temporary folder and tests
# what lies there: the files that were meant and no others, headers that compile alone as C++17, and
# all that the host in examples/host needs to be built by CMake and by pkg-config, and to run.
#
# usage: run.sh tree|packages shared|static BUILD_FOLDER
set -euo pipefail
export LC_ALL=C

way=$1 library=$2 build=$3
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
examples=$here/../../examples
temp=$(mktemp -d)
trap 'rm -rf "$temp"' EXIT
prefix=$temp/usr

step() { printf '== %s\n' "$1"; }

step "install"
if [[ $way == tree ]]; then
  cmake --install "$build" --prefix "$prefix" >/dev/null
else
  cpack --config "$build/CPackConfig.cmake" -B "$temp/packages" >/dev/null
  for package in "$temp"/packages/*.deb; do dpkg-deb -x "$package" "$temp"; done
fi
lib=$(dirname "$(find "$prefix" -name pkgconfig)")
export PKG_CONFIG_PATH=$lib/pkgconfig LD_LIBRARY_PATH=$lib CMAKE_PREFIX_PATH=$prefix
export CXX=${CXX:-c++} CXXFLAGS='-Wall -Wextra -Wpedantic -Wshadow -Werror'

step "files"
[[ $library == shared ]] && absent='\.a$' || absent='\.so|doc/libapmqdf[0-9]'
find "$prefix" ! -type d -printf '%P\n' |
  sed -E 's/\.so(\.[0-9]+){3,}$/.so.VERSION/; s/(-targets-).*\.cmake$/\1CONFIG.cmake/
          s|^lib/[^/]+-linux-gnu/|lib/|' |
  sort | diff -u <(grep -vE "$absent" "$here/files.txt") -

step "headers"
for header in $(cd "$prefix/include" && find . -name '*.h' -printf '%P\n'); do
  # shellcheck disable=SC2086
  "$CXX" -std=c++17 -fsyntax-only $CXXFLAGS -I"$prefix/include" -x c++ - <<<"#include \"$header\""
done

step "program"
[[ $("$prefix/bin/qdf" --version) == *"$(pkg-config --modversion apmqdf)"* ]]

runs() { "$1" "$examples/OutputDrivers/plot36.qdf" | diff -u "$here/host.txt" -; }

step "host, CMake"
cmake -S "$examples/host" -B "$temp/cmake" >/dev/null
cmake --build "$temp/cmake" >/dev/null
runs "$temp/cmake/host"

step "host, pkg-config"
[[ $library == shared ]] || export PKG_CONFIG='pkg-config --static'
cp -r "$examples/host" "$temp/make"
make -C "$temp/make" >/dev/null
runs "$temp/make/host"

step "pkg-config, library outside of the prefix"
cmake -S "$here/../.." -B "$temp/outside" -DAPMQDF_BUILD_TESTS=OFF \
  -DCMAKE_INSTALL_PREFIX=/opt/qdf -DCMAKE_INSTALL_LIBDIR=/srv/lib >/dev/null
diff -u - <(PKG_CONFIG_PATH=$temp/outside/install pkg-config --cflags --libs apmqdf) \
  <<<'-I/opt/qdf/include -L/srv/lib -lapmqdf '
