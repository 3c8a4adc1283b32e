#!/usr/bin/env bash
# Builds and runs the C99 consumer against an installed library that pkg-config finds.
#
#     with_pkg_config.sh COMPILER LIBDIR VERSION WORK
set -euo pipefail
compiler=$1 libdir=$2 version=$3 work=$4
source=$(dirname "$0")/consumer.c

export PKG_CONFIG_PATH=$libdir/pkgconfig
[[ $(pkg-config --modversion quorvan) == "$version" ]]
mkdir -p "$work"
read -ra flags <<<"$(pkg-config --cflags --libs quorvan)"
"$compiler" -std=c99 -Wall -Wextra -Wpedantic -Werror "$source" "${flags[@]}" -o "$work/consumer"
LD_LIBRARY_PATH=$libdir "$work/consumer"
