#!/bin/sh
# Measures quillomat-cli, with one thread where nothing else is said, beside the tools that one would otherwise
# reach for, all in one run on the same texts, and prints tables in Markdown: medians, but for folders the
# shortest times, since other programs disturb what waits for the system most.
# Usage: bench/compare.sh [BOOK]   BOOK is a plain text of at least 1 MB; without one a text is generated.
# ROUNDS (7) says how often each command runs, TMPDIR where the texts are put (1.1 GB), PICTURE where the results
# are drawn (an SVG; nowhere without it). Needs a release build, python3 (for the texts and the picture), findutils and
# coreutils; mawk and perl are measured where they are there.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
program="$root/build/release/src/cli/quillomat-cli"
rounds=${ROUNDS:-7}
[ -x "$program" ] || { echo "build it first: cmake --preset release && cmake --build --preset release" >&2; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
printf 'making the texts ...\n' >&2
python3 "$root/bench/make_inputs.py" "$work" "$@"
export LC_ALL=C.UTF-8 QUILLOMAT_DATA="$root/data"

now() { date +%s%N; }

# run_once NAME COMMAND...: adds its time in microseconds to the file of that name. A list is always written anew:
# to free the blocks of a large old one takes the system longer than many a count.
run_once() {
  name=$1
  shift
  rm -f "$work/list.txt"
  start=$(now)
  "$@" >/dev/null 2>&1
  end=$(now)
  echo $(((end - start) / 1000)) >>"$work/times.$name"
}

shortest() { sort -n "$work/times.$1" | head -n 1; }
median() { sort -n "$work/times.$1" | awk '{ t[NR] = $1 } END { print t[int((NR + 1) / 2)] }'; }

count() { # FILE OPTIONS...
  file=$1
  shift
  "$program" --file "$file" --threads "${threads:-1}" --output "$work/list.txt" --set chkWarnOnOverwrite=0 "$@"
}
# By the western rule a text may have no word at all, and no list then, which is no fault here.
count_if_any() { count "$@" || [ $? -eq 1 ]; }
count_folder() { # FOLDER THREADS
  "$program" --folder "$1" --threads "$2" --subfolders --output "$work/list.txt" --set chkWarnOnOverwrite=0
}
pipeline() {
  tr 'A-Z' 'a-z' <"$1" | tr -cs 'a-z' '\n' | sort | uniq -c | sort -rn
}
with_mawk() {
  mawk '{ n = split(tolower($0), w, /[^a-z]+/); for (i = 1; i <= n; i++) if (w[i] != "") c[w[i]]++ }
        END { for (k in c) print c[k], k }' "$1" | sort -rn
}
with_perl() {
  perl -ne 'while (/([a-z]+)/gi) { $c{lc $1}++ }
            END { printf "%d %s\n", $c{$_}, $_ for sort { $c{$b} <=> $c{$a} } keys %c }' "$1"
}
with_python() {
  python3 -c 'import collections, re, sys
text = open(sys.argv[1], encoding="utf-8").read().lower()
for word, n in collections.Counter(re.findall("[a-z]+", text)).most_common(): print(n, word)' "$1"
}
cat_all() { find "$1" -type f -print0 | xargs -0 cat; }
have() { command -v "$1" >/dev/null 2>&1; }

row() { # TEXT MICROSECONDS BASE
  awk -v text="$1" -v t="$2" -v base="$3" 'BEGIN { printf "| %s | %.3f s | %.2f |\n", text, t / 1e6, t / base }'
}

# bar GROUP LABEL MICROSECONDS: for the picture.
bar() { awk -v g="$1" -v l="$2" -v t="$3" 'BEGIN { printf "%s\t%s\t%.6f\n", g, l, t / 1e6 }' >>"$work/bars"; }

folders="many2k many50k many800k"
languages="en fr de pl ru el"
language_name() {
  case $1 in
    en) echo English ;;
    fr) echo French ;;
    de) echo German ;;
    pl) echo Polish ;;
    ru) echo Russian ;;
    el) echo Greek ;;
  esac
}
settings="accents html source case ignore only everything"
measure_setting() {
  case $1 in
    accents) count "$work/accents10.txt" --set chkDropFinalS=1 ;;
    html) count "$work/html10.html" ;;
    source) count "$work/source10.c" ;;
    case) count "$work/book10.txt" --set chkCaseSignificant=1 ;;
    ignore) count "$work/book10.txt" --set "txbWordsFile(0)=$work/list400.txt" ;;
    only) count "$work/book10.txt" --set "txbWordsFile(1)=$work/list400.txt" ;;
    everything)
      set -- Apostrophes Underscores Colons Backslashes Forwardslashes Parentheses Periods Commas AtSigns Numerals
      options=
      for sign in "$@"; do options="$options --set chkAllowWordsWith$sign=1"; done
      # shellcheck disable=SC2086 # options are words of their own
      count "$work/book10.txt" $options ;;
  esac
}

printf 'measuring, %s rounds ...\n' "$rounds" >&2
i=0
while [ "$i" -lt "$rounds" ]; do
  run_once ours10 count "$work/book10.txt"
  threads=2
  run_once threads2 count "$work/book10.txt"
  threads=1
  run_once wc wc -w "$work/book10.txt"
  run_once ours1 count "$work/book.txt"
  run_once words20k count "$work/words20k.txt"
  run_once words2m count "$work/words2m.txt"
  for folder in $folders; do
    run_once "cat.$folder" cat_all "$work/$folder"
    run_once "one.$folder" count_folder "$work/$folder" 1
    run_once "two.$folder" count_folder "$work/$folder" 2
  done
  for setting in $settings; do run_once "$setting" measure_setting "$setting"; done
  run_once line count "$work/line.txt"
  for language in $languages; do
    run_once "western.$language" count_if_any "$work/language_$language.txt"
    run_once "all.$language" count "$work/language_$language.txt" --letters all
  done
  threads=2
  run_once words2m2 count "$work/words2m.txt"
  threads=1
  i=$((i + 1))
done
# The slow ones, three times.
for i in 1 2 3; do
  run_once pipeline pipeline "$work/book10.txt"
  if have mawk; then run_once mawk with_mawk "$work/book10.txt"; fi
  if have perl; then run_once perl with_perl "$work/book10.txt"; fi
  run_once python with_python "$work/book10.txt"
done

base=$(median ours10)
bytes=$(wc -c <"$work/book10.txt")
printf '\nA book ten times over, %s bytes, frequency list to a file:\n\n' "$bytes"
printf '| | time | times as long |\n|---|---|---|\n'
row 'quillomat-cli, one thread' "$base" "$base"
row 'quillomat-cli, two threads' "$(median threads2)" "$base"
row '`wc -w` (counts, makes no list)' "$(median wc)" "$base"
row '`tr \| sort \| uniq -c`' "$(median pipeline)" "$base"
if have mawk; then row mawk "$(median mawk)" "$base"; else echo '| mawk | not installed | |'; fi
if have perl; then row perl "$(median perl)" "$base"; else echo '| perl | not installed | |'; fi
row 'Python, `Counter` and `re`' "$(median python)" "$base"

printf '\nOther texts and settings, per byte of plain English at default settings:\n\n'
printf '| | time | times as long per byte |\n|---|---|---|\n'
setting_row() { # TEXT NAME FILE
  size=$(wc -c <"$work/$3")
  row "$1" "$(median "$2")" "$(awk -v b="$base" -v s="$size" -v p="$bytes" 'BEGIN { print b * s / p }')"
}
setting_row 'accented text, final s dropped' accents accents10.txt
setting_row 'HTML' html html10.html
setting_row 'C source' source source10.c
setting_row 'case significant' case book10.txt
setting_row '400 words to ignore' ignore book10.txt
setting_row '400 count-only words' only book10.txt
setting_row 'numerals and all signs allowed' everything book10.txt

printf '\nLanguages, nanoseconds per byte by either rule of letters (texts made of the common words in data/):\n\n'
printf '| | western | all letters | all letters, per byte of English |\n|---|---|---|---|\n'
per_byte() { awk -v t="$(median "$1")" -v s="$(wc -c <"$work/language_$2.txt")" 'BEGIN { printf "%.3f", t * 1e3 / s }'; }
english=$(per_byte all.en en)
for language in $languages; do
  awk -v text="$(language_name "$language")" -v w="$(per_byte "western.$language" "$language")" \
    -v a="$(per_byte "all.$language" "$language")" -v e="$english" \
    'BEGIN { printf "| %s | %.2f | %.2f | %.2f |\n", text, w, a, a / e }'
done

printf '\nGrowth:\n\n| | time | times as long |\n|---|---|---|\n'
row 'one line' "$(median line)" "$(median ours1)"
row 'the book once' "$(median ours1)" "$(median ours1)"
row 'the book ten times over' "$base" "$(median ours1)"
row '4,000,000 words, 20,000 of them different' "$(median words20k)" "$(median words20k)"
row '4,000,000 words, 2,000,000 of them different' "$(median words2m)" "$(median words20k)"
row 'the same, two threads' "$(median words2m2)" "$(median words20k)"

printf '\nFolders, the shortest of %s rounds:\n\n' "$rounds"
printf '| | `find -print0 \\| xargs -0 cat` | one thread | two threads | one / two | two / cat |\n'
printf '|---|---|---|---|---|---|\n'
folder_row() { # TEXT FOLDER
  awk -v text="$1" -v cat="$(shortest "cat.$2")" -v one="$(shortest "one.$2")" -v two="$(shortest "two.$2")" 'BEGIN {
    printf "| %s | %.3f s | %.3f s | %.3f s | %.2f | %.2f |\n", text, cat / 1e6, one / 1e6, two / 1e6, one / two, two / cat
  }'
}
folder_row '20,000 files of 2 KB' many2k
folder_row '2,000 files of 50 KB' many50k
folder_row '100 files of 800 KB' many800k

[ -n "${PICTURE:-}" ] || exit 0
group="A book ten times over, $((bytes / 1000000)) MB"
bar "$group" 'quillomat-cli, two threads' "$(median threads2)"
bar "$group" 'quillomat-cli, one thread' "$base"
bar "$group" 'wc -w (makes no list)' "$(median wc)"
if have mawk; then bar "$group" mawk "$(median mawk)"; fi
if have perl; then bar "$group" perl "$(median perl)"; fi
bar "$group" Python "$(median python)"
bar "$group" 'tr | sort | uniq -c' "$(median pipeline)"
for folder in many2k many50k many800k; do
  case $folder in
    many2k) group='20,000 files of 2 KB' ;;
    many50k) group='2,000 files of 50 KB' ;;
    many800k) group='100 files of 800 KB' ;;
  esac
  bar "$group" 'quillomat-cli, two threads' "$(shortest "two.$folder")"
  bar "$group" 'quillomat-cli, one thread' "$(shortest "one.$folder")"
  bar "$group" 'find | xargs cat (only reads)' "$(shortest "cat.$folder")"
done
group='4,000,000 words, one thread'
bar "$group" 'quillomat-cli, 20,000 different' "$(median words20k)"
bar "$group" 'quillomat-cli, 2,000,000 different' "$(median words2m)"
python3 "$root/bench/picture.py" "$work/bars" >"$PICTURE"
