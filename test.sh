#!/bin/sh
# ./test.sh builds Quillomat for development and runs all tests.
# ./test.sh --all runs them under AddressSanitizer and UndefinedBehaviorSanitizer, too, and under
# ThreadSanitizer those that use threads, runs each fuzzer for a while (QUILLOMAT_FUZZ_SECONDS, 20 if not
# set), and tries the programs that users run: the release build.
. "$(dirname "$0")/cmake/setup.sh"

case "${1:-}" in
'' | --all) ;;
*) printf 'usage: %s [--all]\n' "$0" >&2; exit 2 ;;
esac

# shellcheck disable=SC2046 # one word a package
need_packages $(packages_of build) $(packages_of test)
cores=$(nproc)

# run_tests PRESET: builds it and runs its tests.
run_tests() {
  printf '== %s\n' "$1"
  build "$1"
  (cd "$root" && ctest --preset "$1" -j "$cores" --progress)
}

run_tests dev
[ "${1:-}" = --all ] || exit 0
run_tests asan
run_tests tsan

printf '== fuzz\n'
"$root/fuzz/run.sh" "${QUILLOMAT_FUZZ_SECONDS:-20}"

printf '== release\n'
build release
export QUILLOMAT_DATA="$root/data"
terminal="$root/build/release/src/cli/quillomat-cli"
sh "$root/tests/cli/end_to_end.sh" "$terminal" "$root/data"
sh "$root/tests/golden/terminal_lists.sh" "$terminal" "$root/data" "$root/tests/golden/lists"
"$root/tests/qt/by_hand.sh" "$root/build/release/src/qt/quillomat" "$root/data"
