# Shared by run.sh and test.sh: sourced, not run. Installs what is missing on Debian and builds.
set -eu
root=$(cd "$(dirname "$0")" && pwd)
while [ ! -f "$root/CMakePresets.json" ]; do root=$(dirname "$root"); done # a script in a folder of ours

# packages_of SECTION: the packages that stand under "# SECTION" in the list.
packages_of() {
  awk -v section="# $1" '/^#/ { on = ($0 == section); next } on && NF' "$root/cmake/debian-packages.txt"
}

# need_packages PACKAGE...: installs those that are missing, or says what to do.
need_packages() {
  missing=""
  for package in "$@"; do
    if ! dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed; then
      missing="$missing $package"
    fi
  done
  [ -z "$missing" ] && return 0
  if [ "$(id -u)" -eq 0 ]; then
    as_root=""
  elif command -v sudo >/dev/null 2>&1; then
    as_root="sudo"
  else
    printf 'Quillomat needs these packages, and there is neither root nor sudo here to install them:\n ' >&2
    printf '%s\nInstall them with: apt-get install%s\n' "$missing" "$missing" >&2
    exit 1
  fi
  printf 'Installing:%s\n' "$missing" >&2
  $as_root apt-get update -qq >&2
  # shellcheck disable=SC2086 # the names are words of their own
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing \
    >/dev/null 2>"${TMPDIR:-/tmp}/quillomat-install.$$" || { cat "${TMPDIR:-/tmp}/quillomat-install.$$" >&2; exit 1; }
  rm -f "${TMPDIR:-/tmp}/quillomat-install.$$"
}

# build PRESET: configures where needed and builds; quiet unless something fails.
build() {
  mkdir -p "$root/build"
  log="$root/build/$1.log"
  if ! { cd "$root" && cmake --preset "$1" && cmake --build --preset "$1"; } >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
  fi
}
