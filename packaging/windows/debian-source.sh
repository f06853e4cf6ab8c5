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
