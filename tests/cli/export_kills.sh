#!/bin/sh
# Ends quillomat-cli at random moments while it exports words over older files, in every format; then has it
# export onto a full disk and into a folder that may not be written. Each file must be the old one or the new
# one as a whole, after INT and TERM no other file may be left, and what failed must be told, naming the file.
# Usage: export_kills.sh PROGRAM ROUNDS
set -u
. "$(dirname "$0")/random_kill.sh"
program=$1
rounds=$2
formats="csv tsv json jsonl html md xlsx"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
chmod 755 "$work"
cd "$work" || exit 1
mkdir place scratch old new
TMPDIR=$work/scratch
export TMPDIR
failed=0

fail() {
  echo "FAILED $1"
  failed=1
}

reason() {
  tail -n 1 err
}

export_words() { # TEXT [PREFIX_COMMAND...]: into place/
  text=$1
  shift
  set -- "$@" "$program" "$text" --numerals --format 8 --overwrite --statistics
  for format in $formats; do set -- "$@" --export "place/words.$format"; done
  "$@" >list 2>err
}

# A workbook holds the moment when it was made, so that two of the same words may differ in a few bytes; whole
# it is if it has the length of one and the record with which an archive ends.
is_new() { # FORMAT
  if [ "$1" != xlsx ]; then
    cmp -s "place/words.$1" "new/words.$1"
    return
  fi
  difference=$(($(wc -c <place/words.xlsx) - $(wc -c <new/words.xlsx)))
  [ "${difference#-}" -le 64 ] && tail -c 22 place/words.xlsx | head -c 4 | cmp -s - archive_end
}

expect_old() { # WHAT FORMAT
  cmp -s "place/words.$2" "old/words.$2" || fail "$1: words.$2 is not the old one"
}
expect_nothing_else() { # WHAT
  [ "$(ls -A place | wc -l)" -eq 7 ] || fail "$1: left behind: $(ls -A place)"
  [ -z "$(ls -A scratch)" ] || fail "$1: left behind: $(ls -A scratch)"
}

seq 1 3000 | sed 's/.*/old&a/' >old.txt
seq 1 5000 | sed 's/.*/new&b/' >new.txt
printf 'PK\005\006' >archive_end
export_words old.txt || { reason; exit 1; }
cp place/* old/
start=$(date +%s%N)
export_words new.txt || { reason; exit 1; }
whole=$((($(date +%s%N) - start) / 1000)) # microseconds of an undisturbed run
cp place/* new/
for format in $formats; do
  is_new "$format" || fail "words.$format of one count is not the same twice"
  cmp -s "old/words.$format" "new/words.$format" && fail "words.$format does not differ"
done

files_old=0
files_new=0
killed=0
round=0
while [ "$round" -lt "$rounds" ]; do
  round=$((round + 1))
  draw_kill "$round" 1.2
  what="round $round ($signal after $delay s)"
  cp old/* place/
  export_words new.txt timeout --preserve-status -s "$signal" "$delay"
  got=$?
  [ "$got" -eq 0 ] || [ "$got" -eq "$status" ] || fail "$what: exit status $got: $(reason)"
  [ "$got" -eq 0 ] || killed=$((killed + 1))
  for format in $formats; do
    if cmp -s "place/words.$format" "old/words.$format"; then
      files_old=$((files_old + 1))
    elif is_new "$format"; then
      files_new=$((files_new + 1))
    else
      fail "$what: words.$format is neither the old nor the new one"
    fi
  done
  [ "$signal" = KILL ] || expect_nothing_else "$what"
  find place scratch -name '.*.new' -delete
  rm -rf scratch/*
done
echo "$rounds rounds, $killed ended by a signal; files found: $files_old old, $files_new new"

# A limit on the length of files stands for a full disk.
cp old/* place/
for format in $formats; do
  (
    ulimit -f 8
    "$program" new.txt --numerals --overwrite --export "place/words.$format" >/dev/null 2>err
  )
  got=$?
  [ "$got" -eq 1 ] || fail "full disk, $format: exit status $got"
  grep -q "place/words.$format cannot be written: " err || fail "full disk, $format: $(reason)"
  expect_old "full disk" "$format"
done
# A workbook is gathered in several files, and each may be the one that finds no room.
sheet=$(unzip -l new/words.xlsx 2>/dev/null | awk '/sheet1.xml/ { print int($1 / 512) }')
sheet=${sheet:-2600}
for limit in 100 $((sheet / 2)) $((sheet - 40)) $((sheet - 10)) $((sheet - 1)) "$sheet" $((sheet + 1)); do
  cp old/words.xlsx place/
  (
    ulimit -f "$limit"
    "$program" new.txt --numerals --format 8 --overwrite --statistics --export place/words.xlsx >/dev/null 2>err
  )
  got=$?
  if [ "$got" -eq 0 ]; then
    is_new xlsx || fail "disk of $limit blocks: the workbook is not whole"
  else
    grep -q "words.xlsx cannot be written: Disk full" err || fail "disk of $limit blocks: $got $(reason)"
    expect_old "disk of $limit blocks" xlsx
  fi
done
expect_nothing_else "full disk"
if [ -e /dev/full ]; then
  ln -s /dev/full full.csv
  "$program" new.txt --numerals --export full.csv >/dev/null 2>err && fail "/dev/full: no fault"
  grep -q "full.csv cannot be written: " err || fail "/dev/full: $(reason)"
fi

# Root may write everywhere, and becomes nobody for this.
cp old/* place/
chmod 555 place
chmod 444 place/*
chmod 777 scratch
as_user=
[ "$(id -u)" -ne 0 ] || as_user="setpriv --reuid=65534 --regid=65534 --clear-groups"
if $as_user "$program" --version >/dev/null 2>&1; then
  for name in words.csv words.xlsx none.json; do
    $as_user "$program" new.txt --numerals --overwrite --export "place/$name" >/dev/null 2>err
    got=$?
    [ "$got" -eq 1 ] || fail "read-only folder, $name: exit status $got"
    grep -q "place/$name cannot be written: " err || fail "read-only folder, $name: $(reason)"
  done
  for format in $formats; do expect_old "read-only folder" "$format"; done
  expect_nothing_else "read-only folder"
else
  echo "not tried: a read-only folder, as nobody may not start the program"
fi
chmod 755 place
[ "$failed" -eq 0 ] && [ "$((files_old + files_new))" -eq "$((7 * rounds))" ]
