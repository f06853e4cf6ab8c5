#!/bin/sh
# Makes Quillomat-VERSION-win64.zip in build/: the program for Windows, to be unpacked and started.
# The toolkit is built first if need be (build-qt.sh, once, some 20 minutes).
. "$(dirname "$0")/../../cmake/setup.sh"

# shellcheck disable=SC2046 # one word a package
need_packages $(packages_of build) $(packages_of windows) $(packages_of windows-qt)
here=$root/packaging/windows
qt=$("$here/build-qt.sh" | tail -n 1)
build=$root/build/windows-release
QUILLOMAT_XLSX=$("$here/build-xlsx.sh" | tail -n 1)
QUILLOMAT_UTF8PROC=$("$here/build-utf8proc.sh" | tail -n 1)
QUILLOMAT_UCHARDET=$("$here/build-uchardet.sh" | tail -n 1)
export QUILLOMAT_XLSX QUILLOMAT_UTF8PROC QUILLOMAT_UCHARDET
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH)
mkdir -p "$build"

log=$build/build.log
{
  cmake -G Ninja -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Release "-DCMAKE_CXX_FLAGS_RELEASE=-O2 -DNDEBUG" \
    -DCMAKE_TOOLCHAIN_FILE="$qt/lib/cmake/Qt6/qt.toolchain.cmake" \
    -DQT_CHAINLOAD_TOOLCHAIN_FILE="$root/cmake/windows-toolchain.cmake" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$multiarch/cmake" \
    -DQUILLOMAT_BUILD_TESTS=OFF -DQUILLOMAT_BUILD_WINDOWS=ON -DQUILLOMAT_USE_SOURCE_DATA=OFF &&
    cmake --build "$build" --parallel "$(nproc)"
} >"$log" 2>&1 || { tail -n 40 "$log" >&2; exit 1; }

version=$(sed -n 's/^project(Quillomat VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")
name=Quillomat-$version-win64
folder=$build/$name
rm -rf "$folder" "$root/build/$name.zip"
mkdir -p "$folder/licences"
for program in qt/quillomat cli/quillomat-cli; do
  x86_64-w64-mingw32-strip -o "$folder/$(basename "$program").exe" "$build/src/$program.exe"
done
cp "$root/data/qlav_text.dat" "$root"/data/cwds_*.txt "$folder"
cp -r "$root/data/samples" "$folder/samples"
# What is to be read on Windows has its line ends.
for text in README.md CHANGELOG.md; do sed 's/$/\r/' "$root/$text" >"$folder/${text%.md}.txt"; done
sed 's/$/\r/' "$root/LICENSE" >"$folder/licences/Quillomat.txt"
"$here/collect-licences.sh" "$folder/licences"
(cd "$build" && zip -q -9 -r "$root/build/$name.zip" "$name")
printf '%s\n' "$root/build/$name.zip"
