#!/usr/bin/env bash
# Builds a linear algebra provider for 64-bit Windows from Debian's own lapack source, for the tests:
# ZR150000_BLASLAPACK.dll with the BLAS, CBLAS and LAPACK of double precision and the pair of aligned allocators.
#
#     tools/windows_provider.sh FOLDER        FOLDER/ZR150000_BLASLAPACK.dll; nothing is done where it is up to date
#
# The source comes through apt-get from the mirrors that this machine knows; its own lists stay as they are.
set -euo pipefail
(($# == 1)) || { sed -n '2,7s/^# \{0,1\}//p' "$0" >&2; exit 2; }
root=$(cd "$(dirname "$0")/.." && pwd)
mkdir -p "$1"
folder=$(cd "$1" && pwd)
triple=x86_64-w64-mingw32
name=ZR150000_BLASLAPACK
names=$root/linalg/provider.h

if [[ -e $folder/$name.dll && $folder/$name.dll -nt $names && $folder/$name.dll -nt $root/tools/windows_provider.sh ]]; then
    exit
fi

if ! compgen -G "$folder/lapack-*/CMakeLists.txt" >/dev/null; then
    apt=$folder/apt
    mkdir -p "$apt/sources" "$apt/lists/partial" "$apt/cache/archives/partial"
    for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [[ -e $list ]] || continue
        sed -n '/cdrom:/!s/^deb[[:space:]]/deb-src /p' "$list" >"$apt/sources/$(basename "$list" .list).list"
    done
    for list in /etc/apt/sources.list.d/*.sources; do
        [[ -e $list ]] || continue
        sed 's/^Types:.*/Types: deb-src/' "$list" >"$apt/sources/$(basename "$list")"
    done
    options=(-o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$apt/sources" -o Dir::State::lists="$apt/lists"
             -o Dir::Cache="$apt/cache" -o APT::Sandbox::User=root)
    apt-get "${options[@]}" update --quiet
    (cd "$folder" && apt-get "${options[@]}" source --quiet lapack)
fi
source=$(compgen -G "$folder/lapack-*/" | head -1)

cat >"$folder/toolchain.cmake" <<EOF
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER $triple-gcc-posix)
set(CMAKE_Fortran_COMPILER $triple-gfortran-posix)
set(CMAKE_CROSSCOMPILING_EMULATOR ${WINE:-$(command -v wine64 || ls /usr/lib/wine/wine64)})
EOF
export WINEPREFIX=${WINEPREFIX:-$folder/prefix} WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
cmake -G Ninja -S "$source" -B "$folder/build" -DCMAKE_TOOLCHAIN_FILE="$folder/toolchain.cmake" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_Fortran_FLAGS_RELEASE=-O2 -DCMAKE_EXE_LINKER_FLAGS=-static -DBUILD_SHARED_LIBS=OFF -DCBLAS=ON -DLAPACKE=OFF \
    -DBUILD_SINGLE=OFF -DBUILD_COMPLEX=OFF -DBUILD_TESTING=OFF
cmake --build "$folder/build" --target lapack blas cblas --parallel "${JOBS:-$(nproc)}"

# The routines go out under the names that the library asks for: LAPACK without the underscore of gfortran.
cat >"$folder/allocator.c" <<'EOF'
#include <malloc.h>
#include <stddef.h>
void* MKL_malloc(size_t bytes, int alignment) { return _aligned_malloc(bytes, (size_t)alignment); }
void MKL_free(void* block) { _aligned_free(block); }
EOF
{
    printf 'LIBRARY %s.dll\nEXPORTS\n    MKL_malloc\n    MKL_free\n' "$name"
    sed -n 's/^[A-Za-z:_]* QV_LAPACK(\([a-z0-9]*\)).*/    \1 = \1_/p; s/^[A-Za-z:_]* \(cblas_[a-z0-9_]*\)(.*/    \1/p' "$names"
} >"$folder/provider.def"
"$triple-gcc-posix" -O2 -c "$folder/allocator.c" -o "$folder/allocator.o"
"$triple-gfortran-posix" -shared -static -s -o "$folder/$name.dll" "$folder/allocator.o" "$folder/provider.def" \
    "$folder"/build/lib/libcblas.a "$folder"/build/lib/liblapack.a "$folder"/build/lib/libblas.a
