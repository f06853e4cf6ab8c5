#!/bin/sh
# Puts the licences of all that is linked into the programs for Windows into a folder, each as its
# authors wrote it, and the text that says what is what. Usage: collect-licences.sh FOLDER
. "$(dirname "$0")/../../cmake/setup.sh"
. "$(dirname "$0")/debian-source.sh"
folder=$1
qt=$cache/qt6-base

# take FILE NAME: with the line ends of Windows.
take() { sed 's/\r*$/\r/' "$1" >"$folder/$2.txt"; }

take "$root/packaging/windows/licences.txt" "READ ME FIRST"
for licence in LGPL-3.0-only GPL-3.0-only; do take "$qt/LICENSES/$licence.txt" "Qt, $licence"; done
# The libraries within Qt that its widgets are made with; each names its licence's file.
for library in double-conversion easing freetype harfbuzz-ng libpng md4c pcre2 sha3 zlib; do
  found=$(sed -n 's/.*"LicenseFile": *"\([^"]*\)".*/\1/p' \
    "$qt/src/3rdparty/$library/qt_attribution.json" | sort -u)
  [ -n "$found" ] || { printf 'no licence of %s\n' "$library" >&2; exit 1; }
  printf '%s\n' "$found" | while IFS= read -r file; do
    take "$qt/src/3rdparty/$library/$file" "Qt, $library, $(basename "$file" .txt)"
  done
done
take /usr/share/doc/libhwy-dev/copyright "Highway"
take /usr/share/doc/libutf8proc-dev/copyright "utf8proc"
take /usr/share/doc/libuchardet-dev/copyright "uchardet"
take /usr/share/doc/libcli11-dev/copyright "CLI11"
take /usr/share/doc/mingw-w64-x86-64-dev/copyright "MinGW-w64"
take /usr/share/doc/g++-mingw-w64-x86-64-posix/copyright "GCC"
