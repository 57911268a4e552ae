#!/bin/bash
# tests/install/run.sh PRESET: installs that build to a scratch directory, moves the tree, and there builds and runs a
# C program by pkg-config and by find_package. Prints one line PASSED or FAILED for each way.
# shellcheck disable=SC2317,SC2086  # the two ways are called by name; flags are lists of words
set -u
here=$(cd "$(dirname "$0")" && pwd)
preset=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

word=-m64
[ "$preset" = i386 ] && word=-m32
cc="${CC:-clang} -std=c99 -Wall -Wextra -pedantic -Werror $word"

DESTDIR=$scratch/stage cmake --install "$here/../../build/$preset" --prefix /opt/zelm >/dev/null || exit 1
mv "$scratch/stage/opt/zelm" "$scratch/tree"
lib=$(dirname "$(find "$scratch/tree" -name 'libzelmp8-7.1.so')")

by_pkg_config() {
  local flags
  export PKG_CONFIG_LIBDIR=$lib/pkgconfig
  flags=$(pkg-config --cflags --libs zelm) &&
    $cc "$here/main.c" $flags -o "$scratch/by_pkg_config" && LD_LIBRARY_PATH=$lib "$scratch/by_pkg_config"
}

by_find_package() {
  cmake -S "$here" -B "$scratch/build" -G Ninja -DCMAKE_C_COMPILER="${CC:-clang}" -DCMAKE_C_FLAGS=$word \
    -Dzelm_DIR="$lib/cmake/zelm" && cmake --build "$scratch/build" && "$scratch/build/main"
}

status=0
for way in by_pkg_config by_find_package; do
  if $way; then echo "PASSED $way"; else echo "FAILED $way" && status=1; fi
done
exit $status
