#!/usr/bin/env bash
# Builds and runs a consumer against an installed library that pkg-config finds.
#
#     with_pkg_config.sh COMPILER LIBDIR VERSION WORK STANDARD SOURCE
set -euo pipefail
compiler=$1 libdir=$2 version=$3 work=$4 standard=$5
source=$(dirname "$0")/$6

export PKG_CONFIG_PATH=$libdir/pkgconfig
[[ $(pkg-config --modversion quorvan) == "$version" ]]
mkdir -p "$work"
read -ra flags <<<"$(pkg-config --cflags --libs quorvan)"
"$compiler" "-std=$standard" -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror "$source" "${flags[@]}" -o "$work/consumer"
LD_LIBRARY_PATH=$libdir "$work/consumer"
