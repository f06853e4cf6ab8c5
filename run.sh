#!/bin/sh
# Builds Quillomat and counts: ./run.sh --file some-book.txt
# Without arguments it counts the bundled sample. ./run.sh --help lists the options.
. "$(dirname "$0")/cmake/setup.sh"

# shellcheck disable=SC2046 # one word a package
need_packages $(packages_of build)
build release

program="$root/build/release/src/cli/quillomat-cli"
if [ $# -eq 0 ]; then
  exec "$program" --file "$root/data/samples/harbour_en.txt" --summary
fi
exec "$program" "$@"
