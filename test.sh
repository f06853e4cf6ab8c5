#!/bin/sh
# Builds and runs all tests: first a development build, then the same tests under AddressSanitizer and
# UndefinedBehaviorSanitizer.
. "$(dirname "$0")/cmake/setup.sh"

# shellcheck disable=SC2046 # one word a package
need_packages $(packages_of build) $(packages_of test)

cores=$(nproc)
for preset in dev asan; do
  printf '== %s\n' "$preset"
  build "$preset"
  (cd "$root" && ctest --preset "$preset" -j "$cores" --progress)
done
