#!/usr/bin/env bash
# Installs the Debian packages that the named groups need and that are missing; does nothing when all are there.
#
#     tools/packages.sh build test
#     tools/packages.sh --list build      prints the packages of a group
set -euo pipefail

# The one place that says what is needed, and for what.
declare -A GROUPS_OF_PACKAGES=(
    [build]="cmake g++ libopenblas-dev ninja-build"
    [test]="libblas3 libgtest-dev liblapack3 pkg-config python3 python3-mpmath python3-mypy python3-numpy python3-pip python3-pytest python3-scipy python3-setuptools python3-sphinx python3-venv python3-wheel"
    [docs]="python3 python3-sphinx"
    [windows]="dpkg-dev g++-mingw-w64-x86-64-posix gfortran-mingw-w64-x86-64-posix libgtest-dev python3 python3-pytest wine64"
    [bench]="libbenchmark-dev libfftw3-dev pkg-config python3 python3-numpy python3-scipy"
    [picture]="python3 python3-matplotlib python3-numpy"
    [format]="clang-format"
    [tidy]="clang-tidy"
)

list_only=false
if [[ ${1:-} == --list ]]; then
    list_only=true
    shift
fi

packages=()
for group in "$@"; do
    if [[ -z ${GROUPS_OF_PACKAGES[$group]:-} ]]; then
        echo "packages.sh: no group '$group'; there are: ${!GROUPS_OF_PACKAGES[*]}" >&2
        exit 2
    fi
    read -ra of_group <<<"${GROUPS_OF_PACKAGES[$group]}"
    packages+=("${of_group[@]}")
done

if $list_only; then
    printf '%s\n' "${packages[@]}"
    exit
fi

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "packages.sh: not a Debian machine; going on with what is there. Needed: ${packages[*]}" >&2
    exit
fi

missing=()
for package in "${packages[@]}"; do
    state=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null || true)
    [[ $state == installed ]] || missing+=("$package")
done
if ((${#missing[@]} == 0)); then exit; fi

as_root=()
if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
        echo "packages.sh: missing: ${missing[*]}; install them as root" >&2
        exit 1
    fi
    as_root=(sudo)
fi
echo "packages.sh: installing ${missing[*]}"
"${as_root[@]}" apt-get update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install --yes --no-install-recommends "${missing[@]}"
