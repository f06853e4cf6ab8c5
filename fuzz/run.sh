#!/bin/sh
# Runs the fuzzers. Usage: fuzz/run.sh [SECONDS [TARGET...]]
# SECONDS: for each target, an hour if not given. TARGETs are the folders in fuzz/seeds, all if none is
# given; as many run at a time as the machine has cores. What they find interesting is kept in
# build/fuzz/corpus for the next run; an input that breaks something in build/fuzz/finds, and the
# status is 1 then.
. "$(dirname "$0")/../cmake/setup.sh"

seconds=${1:-3600}
[ $# -eq 0 ] || shift
# shellcheck disable=SC2046 # one word a target, one word a package
[ $# -gt 0 ] || set -- $(ls "$root/fuzz/seeds")
# shellcheck disable=SC2046
need_packages $(packages_of build) $(packages_of test) $(packages_of fuzz)
build fuzz
cd "$root"
printf '%s\n' "$@" | xargs -P "$(nproc)" -I '{}' fuzz/run_one.sh '{}' "$seconds"
