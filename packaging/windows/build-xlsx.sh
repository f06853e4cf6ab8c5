#!/bin/sh
# Builds for Windows, as a static library, what writes workbooks, from the source of Debian's own package.
# Done once: half a minute. The result stands in the cache folder (QUILLOMAT_CACHE, or ~/.cache/quillomat),
# as xlsx-windows.
. "$(dirname "$0")/../../cmake/setup.sh"
. "$(dirname "$0")/debian-source.sh"

xlsx=$cache/xlsx-windows
if [ -f "$xlsx/complete" ]; then
  printf '%s\n' "$xlsx"
  exit 0
fi

# shellcheck disable=SC2046 # one word a package
need_packages $(packages_of build) $(packages_of windows)
debian_source libxlsxwriter "$cache/libxlsxwriter"
rm -rf "$cache/xlsx-build" "$xlsx"
{
  cmake -G Ninja -S "$cache/libxlsxwriter" -B "$cache/xlsx-build" -Wno-dev \
    -DCMAKE_TOOLCHAIN_FILE="$root/cmake/windows-toolchain.cmake" \
    -DCMAKE_INSTALL_PREFIX="$xlsx" -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF &&
    cmake --build "$cache/xlsx-build" --parallel "$(nproc)" &&
    cmake --install "$cache/xlsx-build"
} >"$cache/xlsx-build.log" 2>&1 || { tail -n 60 "$cache/xlsx-build.log" >&2; exit 1; }
touch "$xlsx/complete"
rm -rf "$cache/xlsx-build"
printf '%s\n' "$xlsx"
