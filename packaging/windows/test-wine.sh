#!/bin/sh
# Builds the terminal program and the unit tests for Windows, runs them with Wine, and checks what only
# the finished program can show: the libraries it needs, its size, its streams, and that its lists are
# those of the program of this system. Usage: test-wine.sh [NATIVE_PROGRAM]
# NATIVE_PROGRAM is the quillomat-cli to compare with; that of the development build if not given.
. "$(dirname "$0")/../../cmake/setup.sh"

# shellcheck disable=SC2046 # one word a package
need_packages $(packages_of build) $(packages_of windows)
here=$root/packaging/windows
native=${1:-$root/build/dev/src/cli/quillomat-cli}
QUILLOMAT_XLSX=$("$here/build-xlsx.sh" | tail -n 1)
QUILLOMAT_UTF8PROC=$("$here/build-utf8proc.sh" | tail -n 1)
QUILLOMAT_UCHARDET=$("$here/build-uchardet.sh" | tail -n 1)
export QUILLOMAT_XLSX QUILLOMAT_UTF8PROC QUILLOMAT_UCHARDET
build windows
prefix=$root/build/windows/wine
mkdir -p "$prefix"
work=$(mktemp -d)
trap 'WINEPREFIX=$prefix wineserver -k || true; rm -rf "$work"' EXIT
# Wine's server stays until the end. Left to itself it goes when no program runs, and a program that is
# started just then fails.
WINEPREFIX=$prefix WINEDEBUG=-all wineserver -p
"$here/wine.sh" "$prefix" wineboot --init >/dev/null 2>&1
(cd "$root" && ctest --preset windows -j "$(nproc)" --progress)

program=$work/quillomat-cli.exe
x86_64-w64-mingw32-strip -o "$program" "$root/build/windows/src/cli/quillomat-cli.exe"
"$here/check-program.sh" "$program" 5
sh "$root/tests/windows/end_to_end.sh" "$here/wine.sh" "$prefix" "$program" "$native" "$root/data"
