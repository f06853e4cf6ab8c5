#!/bin/sh
# Ends quillomat-cli at random moments while it writes a list and a state over older ones. Afterwards
# each file must be the old one or the new one, to the byte; after INT and TERM no other file may be
# left, and the exit status must tell the signal.
# Usage: kills.sh PROGRAM ROUNDS
set -u
. "$(dirname "$0")/random_kill.sh"
program=$1
rounds=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
mkdir place
failed=0

fail() {
  echo "FAILED round $round ($signal after $delay s): $1"
  failed=1
}

count() { # TEXT MINIMUM_LENGTH LIST STATE
  "$program" --file "$1" --format 7 --output "$3" --save-state "$4" --set "cboShortWordSize=#$2" \
    --set chkAllowWordsWithNumerals=1 --set chkWarnOnOverwrite=0 2>err
}

seq 1 40000 | sed 's/.*/old&a/' >old.txt
seq 1 60000 | sed 's/.*/new&b/' >new.txt
count old.txt 0 place/list place/state.qlm || { cat err; exit 1; }
cp place/list old.list
cp place/state.qlm old.qlm
start=$(date +%s%N)
count new.txt 1 place/list place/state.qlm || { cat err; exit 1; }
whole=$((($(date +%s%N) - start) / 1000)) # microseconds of an undisturbed run
cp place/list new.list
cp place/state.qlm new.qlm
cmp -s old.list new.list && { echo "FAILED: the lists do not differ"; exit 1; }
cmp -s old.qlm new.qlm && { echo "FAILED: the states do not differ"; exit 1; }

old=0
new=0
killed=0
round=0
while [ "$round" -lt "$rounds" ]; do
  round=$((round + 1))
  draw_kill "$round" 1.3
  cp old.list place/list
  cp old.qlm place/state.qlm
  timeout --preserve-status -s "$signal" "$delay" "$program" --file new.txt --format 7 \
    --output place/list --save-state place/state.qlm --set "cboShortWordSize=#1" \
    --set chkAllowWordsWithNumerals=1 --set chkWarnOnOverwrite=0 2>err
  got=$?
  [ "$got" -eq 0 ] || [ "$got" -eq "$status" ] || fail "exit status $got: $(cat err)"
  [ "$got" -eq 0 ] || killed=$((killed + 1))
  for file in list state.qlm; do
    if cmp -s "place/$file" "old.${file##*.}"; then
      old=$((old + 1))
    elif cmp -s "place/$file" "new.${file##*.}"; then
      new=$((new + 1))
    else
      fail "$file is neither the old nor the new one ($(wc -c <"place/$file") bytes)"
    fi
  done
  if [ "$signal" != KILL ] && [ "$(ls -A place | wc -l)" -ne 2 ]; then
    fail "left behind: $(ls -A place)"
  fi
  find place -name '.*.new' -delete
done
echo "$rounds rounds, $killed ended by a signal; files found: $old old, $new new"
[ "$failed" -eq 0 ] && [ "$((old + new))" -eq "$((2 * rounds))" ]
