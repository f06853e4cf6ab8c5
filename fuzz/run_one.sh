#!/bin/sh
# Runs one fuzzer that has been built, and says what came of it. Usage: fuzz/run_one.sh TARGET SECONDS
set -eu
target=$1
seconds=$2
cd "$(dirname "$0")/.."
export QUILLOMAT_DATA="$PWD/data"
program=build/fuzz/fuzz/quillomat_${target}_fuzzer
log=build/fuzz/$target.log
mkdir -p "build/fuzz/corpus/$target" build/fuzz/finds

if "$program" -max_total_time="$seconds" -timeout=60 -rss_limit_mb=2048 -max_len=8192 -print_final_stats=1 \
  -artifact_prefix="build/fuzz/finds/$target-" "build/fuzz/corpus/$target" "fuzz/seeds/$target" >"$log" 2>&1; then
  awk -v target="$target" '/number_of_executed_units/ { runs = $2 } /new_units_added/ { units = $2 }
    END { printf "%-12s %9d runs, %d new inputs kept, nothing found\n", target, runs, units }' "$log"
  exit 0
fi
tail -n 60 "$log"
input=$(sed -n 's/.*Test unit written to //p' "$log" | tail -n 1)
printf '%s: FOUND %s\n' "$target" "${input:-nothing that could be kept}"
[ -n "$input" ] || exit 1
printf 'Again with: %s %s\n' "$program" "$input"
printf 'To have it elsewhere: echo %s | base64 -d >input\n' "$(base64 -w 0 "$input")"
exit 1
