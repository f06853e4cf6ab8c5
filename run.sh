#!/bin/sh
# Builds Quillomat and opens its window; ./run.sh some-book.txt opens it with that book. Without a
# display it counts the book, or the bundled sample, in the terminal.
# ./run.sh cli a-book.txt another.txt counts in the terminal; ./run.sh cli --help lists the options.
. "$(dirname "$0")/cmake/setup.sh"

# shellcheck disable=SC2046 # one word a package
need_packages $(packages_of build)
build release
export QUILLOMAT_DATA="${QUILLOMAT_DATA:-$root/data}"

terminal="$root/build/release/src/cli/quillomat-cli"
if [ "${1:-}" = cli ]; then
  shift
  exec "$terminal" "$@"
elif [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$root/build/release/src/qt/quillomat" "$@"
fi
if [ $# -gt 0 ]; then
  printf 'There is no display here, so it is counted in the terminal.\n' >&2
  exec "$terminal" "$@" --summary
fi
printf 'There is no display here, so this is the sample in the terminal.\n' >&2
exec "$terminal" --file "$root/data/samples/harbour_en.txt" --summary
