#!/bin/bash
# tools/setup.sh [build|test|demo|bench|format]...: installs what these need (default: all) on Debian bookworm.
# Does nothing, and asks no package server, where all is there. Exit status 1 if something could not be installed.
set -u

build=(cmake ninja-build clang libomp-dev g++-multilib)
test=(googletest libeigen3-dev libclang-rt-dev pkg-config)
demo=(libeigen3-dev libpng-dev)
bench=(libeigen3-dev libglm-dev libbenchmark-dev libxsmm-dev)
format=(clang-format)

# The 32-bit OpenMP runtime. All of Debian's libomp5 packages exclude each other, the 64-bit one that libomp-dev needs
# included, so this one's library is unpacked to where the 32-bit loader looks for local additions.
runtime32=libomp5-16:i386
runtime32_needs=libatomic1:i386  # brings the 32-bit C library and its loader path
runtime32_file=/usr/local/lib/i386-linux-gnu/libomp.so.5

die() { echo "setup: $*" >&2; exit 1; }
installed() { [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }
root() { if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi; }
apt() { root env DEBIAN_FRONTEND=noninteractive apt-get -y -q --no-install-recommends "$@"; }

wanted=()
with_runtime32=false
for profile in "${@:-all}"; do
  case $profile in
    build) wanted+=("${build[@]}"); with_runtime32=true ;;
    test | demo | bench | format) declare -n list=$profile; wanted+=("${list[@]}") ;;
    all) wanted+=("${build[@]}" "${test[@]}" "${demo[@]}" "${bench[@]}" "${format[@]}"); with_runtime32=true ;;
    *) die "unknown profile '$profile' (build, test, demo, bench, format)" ;;
  esac
done

command -v dpkg-query >/dev/null || die "no dpkg here: this script knows Debian only; install by hand: ${wanted[*]}"

have_runtime32() { [ -e $runtime32_file ] && installed $runtime32_needs; }
missing_packages() { for package in "${wanted[@]}"; do installed "$package" || echo "$package"; done | sort -u; }

mapfile -t missing < <(missing_packages)
need_runtime32=false
if $with_runtime32 && ! have_runtime32; then need_runtime32=true; fi
[ ${#missing[@]} = 0 ] && ! $need_runtime32 && exit 0

[ "$(id -u)" = 0 ] || command -v sudo >/dev/null ||
  die "run as root or install sudo; missing: ${missing[*]} $($need_runtime32 && echo $runtime32)"

echo "setup: installing ${missing[*]} $($need_runtime32 && echo $runtime32)"
if $need_runtime32; then root dpkg --add-architecture i386; fi
# One index that fails to load need not concern the packages that are wanted here.
apt update || echo "setup: not every package index could be read; going on with those that could" >&2

if $need_runtime32; then
  scratch=$(mktemp -d)
  trap 'rm -rf "$scratch"' EXIT
  if (cd "$scratch" && apt-get -q download $runtime32 && dpkg-deb -x ./*.deb unpacked); then
    root install -D -m 644 "$scratch"/unpacked/usr/lib/llvm-16/lib/libomp.so.5 $runtime32_file
  fi
  apt install --no-remove $runtime32_needs
  root ldconfig
fi
if [ -e $runtime32_file ] && installed $runtime32; then
  echo "setup: removing the package $runtime32, which keeps libomp-dev out; its library is now $runtime32_file"
  apt remove $runtime32
fi
if [ ${#missing[@]} -gt 0 ] && ! apt install --no-remove "${missing[@]}"; then
  for package in "${missing[@]}"; do apt install --no-remove "$package"; done
fi

mapfile -t missing < <(missing_packages)
if $with_runtime32 && ! have_runtime32; then missing+=("$runtime32"); fi
[ ${#missing[@]} = 0 ] || die "could not install: ${missing[*]}"
