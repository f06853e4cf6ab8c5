#!/bin/sh
# Builds Qt's widgets for Windows as static libraries, from the source of Debian's own Qt package. Done
# once: some 20 minutes on two cores. The result stands in the cache folder (QUILLOMAT_CACHE, or
# ~/.cache/quillomat), as qt-windows.
. "$(dirname "$0")/../../cmake/setup.sh"
. "$(dirname "$0")/debian-source.sh"

qt=$cache/qt-windows
if [ -f "$qt/complete" ]; then
  printf '%s\n' "$qt"
  exit 0
fi

# shellcheck disable=SC2046 # one word a package
need_packages $(packages_of build) $(packages_of windows) $(packages_of windows-qt)
debian_source qt6-base "$cache/qt6-base"

# What Quillomat does not use stays out; the libraries that Qt needs (zlib, PNG, FreeType, HarfBuzz,
# PCRE2) come with its source.
rm -rf "$cache/qt-build" "$qt"
cmake -G Ninja -S "$cache/qt6-base" -B "$cache/qt-build" -Wno-dev \
  -DCMAKE_TOOLCHAIN_FILE="$root/cmake/windows-toolchain.cmake" -DQT_HOST_PATH=/usr \
  -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake" \
  -DCMAKE_INSTALL_PREFIX="$qt" -DCMAKE_BUILD_TYPE=MinSizeRel -DBUILD_SHARED_LIBS=OFF \
  -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DFEATURE_pkg_config=OFF \
  -DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF -DFEATURE_opengl=OFF \
  -DINPUT_opengl=no -DFEATURE_vulkan=OFF -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF \
  -DFEATURE_printsupport=OFF -DFEATURE_icu=OFF -DFEATURE_tabletevent=OFF -DFEATURE_testlib=OFF \
  -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_freetype=OFF \
  -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF >"$cache/qt-configure.log" 2>&1 ||
  { tail -n 60 "$cache/qt-configure.log" >&2; exit 1; }
cmake --build "$cache/qt-build" --parallel "$(nproc)" >"$cache/qt-build.log" 2>&1 ||
  { tail -n 60 "$cache/qt-build.log" >&2; exit 1; }
cmake --install "$cache/qt-build" >"$cache/qt-install.log" 2>&1
touch "$qt/complete"
rm -rf "$cache/qt-build"
printf '%s\n' "$qt"
