#!/bin/sh
# Runs test programs on one vector kernel; ends with 77, which ctest shows as skipped, where the
# processor lacks it.
# Usage: on_kernel.sh KERNEL QUILLOMAT-CLI TEST_PROGRAM...
set -u
kernel=$1
terminal=$2
shift 2

there_are=$(QUILLOMAT_KERNEL=none-of-them "$terminal" --text - </dev/null 2>&1)
case "$there_are " in
*"this machine has portable "*) ;;
*) echo "an unknown kernel is not told: $there_are"; exit 1 ;;
esac
case "$there_are " in
*" $kernel "*) ;;
*) echo "no $kernel: $there_are"; exit 77 ;;
esac

# Every case is counted on every kernel; a few of them do here, as each run has its share.
export QUILLOMAT_KERNEL="$kernel" QUILLOMAT_PROPERTY_CASES=500
for program in "$@"; do
  "$program" --gtest_brief=1 || exit 1
done
