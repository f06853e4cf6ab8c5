#!/bin/sh
# Makes the pictures of the windows in docs/images/ anew. Look at them before you commit them.
. "$(dirname "$0")/../cmake/setup.sh"

# shellcheck disable=SC2046 # one word a package
need_packages $(packages_of build) $(packages_of test) fonts-dejavu-core
build dev
mkdir -p "$root/docs/images"
QUILLOMAT_DATA="$root/data" "$root/build/dev/tests/qt/quillomat_pictures" "$root/docs/images" \
  "$root/data/samples" 2>/dev/null
ls -l "$root/docs/images"
