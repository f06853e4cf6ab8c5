#!/bin/sh
# Makes the Debian package of the release build and checks it: lintian finds no error, the desktop entry and
# the AppStream metadata are valid, the manual pages are well-formed, and what was unpacked elsewhere counts
# with its own data and holds no path of the build.
. "$(dirname "$0")/../../cmake/setup.sh"

# shellcheck disable=SC2046 # one word a package
need_packages $(packages_of build) $(packages_of package)
build release
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { printf 'FAILED: %s\n' "$1" >&2; exit 1; }

(cd "$root/build/release" && cpack -G DEB -B "$work" >"$work/cpack.log" 2>&1) || { cat "$work/cpack.log" >&2; exit 1; }
package=$(find "$work" -maxdepth 1 -name '*.deb')
lintian --fail-on error "$package"
# No program says that it will load this one.
dpkg-deb -f "$package" Depends | grep -q libxlsxwriter || fail "the library for workbooks is not asked for"
dpkg-deb -x "$package" "$work/unpacked"
there=$work/unpacked/usr
desktop-file-validate "$there/share/applications/quillomat.desktop"
appstreamcli validate --no-net "$there"/share/metainfo/*.xml
for page in "$there"/share/man/man1/*.gz; do
  faults=$(gzip -dc "$page" | man --warnings -E UTF-8 -l -Tutf8 -Z - 2>&1 >/dev/null)
  [ -z "$faults" ] || fail "$page: $faults"
done
for program in quillomat quillomat-cli; do
  ! grep -qF "$root" "$there/bin/$program" || fail "$program holds the path of the build"
done
unset QUILLOMAT_DATA
# The common words come from the folder that was unpacked: the program found its data.
"$there/bin/quillomat-cli" --file "$root/data/samples/harbour_en.txt" --format 5 >"$work/list" ||
  fail "the unpacked program does not count"
strings_of_texts=$(find "$there/share/quillomat" -name 'cwds_*.txt' | wc -l)
[ "$strings_of_texts" -eq 14 ] || fail "there are $strings_of_texts lists of common words, not 14"
grep -q ' the$' "$work/list" || fail "the list is not as it should be"
printf 'the package is in order\n'
