#!/usr/bin/env bash
# Makes the Debian packages, installs them into a root of their own, builds and runs a program against them there, removes
# them, and looks for what they left behind.
#
#     debian.sh CPACK BUILD WORK CC
set -euo pipefail
cpack=$1 build=$2 work=$3 cc=$4
here=$(cd "$(dirname "$0")" && pwd)

((EUID == 0)) || { echo "dpkg wants root for a root of its own"; exit 77; }
rm -rf "$work"
mkdir -p "$work/root/var/lib/dpkg/"{info,updates}
touch "$work/root/var/lib/dpkg/status"
(cd "$build" && "$cpack" -B "$work" >"$work/cpack.log") || { cat "$work/cpack.log"; exit 1; }
runtime=$(echo "$work"/libquorvan[0-9]*.deb) development=$(echo "$work"/libquorvan-dev_*.deb)

# The packages of the system that they depend on are not in this root.
dpkg_here() { dpkg --root="$work/root" --force-depends --force-not-root --force-script-chrootless "$@"; }
dpkg_here -i "$runtime" "$development" >"$work/dpkg.log" 2>&1 || { cat "$work/dpkg.log"; exit 1; }

pc=$(find "$work/root" -name quorvan.pc)
[[ -n $pc ]] || { echo "no pkg-config file installed"; exit 1; }
libdir=$(dirname "$(dirname "$pc")")
[[ -L $libdir/libquorvan.so.0 && -L $libdir/libquorvan.so ]] || { echo "links are missing in $libdir"; exit 1; }
for file in $(dpkg-deb --fsys-tarfile "$runtime" | tar -t | grep '\.h$\|\.pc$' || true); do
    echo "belongs to the development package: $file"
    exit 1
done
# shellcheck disable=SC2046 -- words are wanted
"$cc" -std=c99 "$here/consumer.c" -o "$work/consumer" $(PKG_CONFIG_PATH=$libdir/pkgconfig pkg-config --cflags --libs quorvan)
LD_LIBRARY_PATH=$libdir "$work/consumer"

dpkg_here --purge libquorvan-dev "$(dpkg-deb -f "$runtime" Package)" >>"$work/dpkg.log" 2>&1 || { cat "$work/dpkg.log"; exit 1; }
left=$(find "$work/root" -iname '*quorvan*')
[[ -z $left ]] || { echo "left behind: $left"; exit 1; }
