# Sourced by the scripts of this folder, after cmake/setup.sh: sources of Debian packages, without
# touching the system's own lists.

# Built once and kept, outside the source tree.
cache=${QUILLOMAT_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/quillomat}

# apt_of_sources ARGUMENT...: apt-get with one list of its own, that of the sources of Debian 12.
apt_of_sources() {
  apt_home=$cache/apt
  mkdir -p "$apt_home/lists/partial" "$apt_home/cache/archives/partial"
  cat >"$apt_home/sources.list" <<LIST
deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] http://deb.debian.org/debian bookworm main
LIST
  apt-get -qq -o APT::Sandbox::User="$(id -un)" -o Dir::Etc::SourceList="$apt_home/sources.list" \
    -o Dir::Etc::SourceParts=/dev/null -o Dir::State::Lists="$apt_home/lists" \
    -o Dir::Cache="$apt_home/cache" "$@"
}

# debian_source PACKAGE FOLDER: unpacks the package's source, with Debian's changes, as FOLDER.
debian_source() {
  [ -d "$2" ] && return 0
  rm -rf "$2.unpacking"
  mkdir -p "$2.unpacking"
  apt_of_sources update
  (cd "$2.unpacking" && apt_of_sources source "$1")
  # The one folder in it is the source; the archives stay behind.
  for unpacked in "$2.unpacking"/*/; do mv "$unpacked" "$2"; done
  rm -rf "$2.unpacking"
}

# debian_library PACKAGE NAME [CMAKE_OPTION...]: builds the package's source for Windows as a static
# library, once, and prints the folder that holds it: NAME-windows in the cache.
debian_library() {
  library=$cache/$2-windows
  if [ ! -f "$library/complete" ]; then
    # shellcheck disable=SC2046 # one word a package
    need_packages $(packages_of build) $(packages_of windows)
    debian_source "$1" "$cache/$1"
    rm -rf "$cache/$2-build" "$library"
    package=$1 name=$2
    shift 2
    {
      cmake -G Ninja -S "$cache/$package" -B "$cache/$name-build" -Wno-dev \
        -DCMAKE_TOOLCHAIN_FILE="$root/cmake/windows-toolchain.cmake" \
        -DCMAKE_INSTALL_PREFIX="$library" -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF "$@" &&
        cmake --build "$cache/$name-build" --parallel "$(nproc)" &&
        cmake --install "$cache/$name-build"
    } >"$cache/$name-build.log" 2>&1 || { tail -n 60 "$cache/$name-build.log" >&2; exit 1; }
    touch "$library/complete"
    rm -rf "$cache/$name-build"
  fi
  printf '%s\n' "$library"
}
