#!/bin/sh
# Runs quillomat-cli.exe as a script would, and checks that its lists are those of the program of this
# system to the byte, but for line ends and the separators of paths.
# Usage: end_to_end.sh WINE PREFIX PROGRAM.exe NATIVE_PROGRAM DATA_FOLDER
set -u
wine=$1
prefix=$2
program=$3
native=$4
data=$5
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
export LC_ALL=C.UTF-8
failed=0

fail() {
  printf 'FAILED %s\n' "$1"
  [ ! -s err ] || cat err
  failed=1
}

# on_windows ARGUMENT...: what it prints is in out and err, its exit status in status.
on_windows() {
  "$wine" "$prefix" "$program" "$@" >out 2>err
  status=$?
}

# windows_path PATH: as Windows programs see a file of this system.
windows_path() { printf 'Z:%s' "$1" | tr / '\\'; }

# with_windows_ends: every line feed becomes a line end of Windows.
with_windows_ends() { sed 's/$/\r/'; }

# same_list NAME ARGUMENT...: both programs print the same list.
same_list() {
  name=$1
  shift
  "$native" "$@" 2>native-err | with_windows_ends >wanted
  [ -s wanted ] || fail "$name: no native list"
  on_windows "$@"
  [ "$status" -eq 0 ] || fail "$name: exit status $status"
  tr '\\' / <out | cmp - wanted || fail "$name: another list"
}

# The lists. Paths are relative, so that they are the same for both programs.
cp "$data/samples/harbour_en.txt" book.txt
cp -r "$data/samples" shelf
for format in 0 1 2 3 4 5 6 7 8 10; do same_list "format $format" --file book.txt --format "$format"; done
same_list "alphabetical" --file book.txt --order alphabetical --format 7
for format in 11 12 13; do
  same_list "format $format of a folder" --folder shelf --subfolders --format "$format" \
    --set "txbWordsToIgnoreOrCount(1)=the de la harbour hafen port"
done
bible=$data/../../shared/data/kjv.txt
if [ -f "$bible" ]; then
  cp "$bible" bible.txt
  same_list "a whole bible" --file bible.txt
  same_list "a whole bible in alphabetical order" --file bible.txt --order alphabetical --format 7
fi
on_windows --file book.txt --format 9
"$native" --file book.txt --format 9 | cmp - out || fail "a list on one line is another"

# Streams: bytes come in as they are and go out where the stream stands.
printf 'one \r\ntwo three\nf\303\274nf f\374nf\n' >text.txt
"$native" --text - --format 7 <text.txt | with_windows_ends >wanted
[ -s wanted ] || fail "no native list of standard input"
"$wine" "$prefix" "$program" --text - --format 7 <text.txt 2>err | cmp - wanted ||
  fail "standard input is not read as it is"
printf 'one two\032 three\n' | "$wine" "$prefix" "$program" --text - >out 2>err
grep -q 'does not consist solely' err || fail "Ctrl+Z ends standard input"
printf 'before\n' >appended
"$wine" "$prefix" "$program" --file book.txt --format 8 >>appended 2>err
head -n 1 appended | grep -qx before || fail "what stood in the file of standard output is gone"
"$wine" "$prefix" "$program" --file book.txt --output list.txt --format 0 2>err
"$native" --file book.txt --format 0 | with_windows_ends | cmp - list.txt ||
  fail "the output file is another"

# holds NAME STATUS TEXT ARGUMENT...: the status and a text on standard error.
holds() {
  name=$1
  wanted_status=$2
  text=$3
  shift 3
  on_windows "$@"
  [ "$status" -eq "$wanted_status" ] || fail "$name: exit status $status, not $wanted_status"
  grep -qF -- "$text" err || fail "$name: no such message: $text"
}
holds "a missing file" 1 'missing.txt does not exist' --file missing.txt
holds "a folder is no file" 1 'shelf is a folder' --file shelf
holds "a wrong command line" 2 '--bogus' book.txt --bogus
on_windows --file book.txt --output NUL
[ "$status" -eq 0 ] || fail "the null device takes no list"

# Names that need care.
counts() {
  name=$1
  shift
  on_windows "$@" --format 8
  [ "$status" -eq 0 ] && grep -q '^cat' out || fail "$name is not counted"
}
counts "a path without an option" book.txt
for name in 'Grüße, naïve café.txt' 'слово 日本語.txt' '📖.txt' 'two  blanks.txt'; do
  printf 'cat' >"$name"
  counts "$name" --file "$name"
done
long=$(printf 'long/%.0s' 1 2 3 | sed "s|long|$(printf 'x%.0s' $(seq 100))|g")
mkdir -p "$long"
printf 'cat' >"$long/book.txt"
counts "a path of more than 260 characters" --file "$(windows_path "$work/$long/book.txt")"
counts "a folder with such a path" --folder "$(windows_path "$work/${long%%/*}")" --subfolders
printf 'cat' >'ends with a dot.'
printf 'cat' >'ends with a blank '
counts "a name that ends with a dot" --file 'ends with a dot.'
counts "a name that ends with a blank" --text 'ends with a blank '
holds "a list whose name ends with a dot" 1 'Path/File access error' --file book.txt --output 'list.'
[ ! -e list. ] && [ ! -e list ] || fail "such a list is written"
mkdir -p server/share
printf 'cat' >server/share/book.txt
mkdir -p "$prefix/dosdevices/unc"
ln -sfn "$work/server" "$prefix/dosdevices/unc/quillomat-test"
counts "a file on a server" --file '\\quillomat-test\share\book.txt'
counts "a folder on a server" --folder '//quillomat-test/share'
rm "$prefix/dosdevices/unc/quillomat-test"
holds "a server that is gone" 1 'does not exist' --file '\\quillomat-test\share\book.txt'

[ "$failed" -eq 0 ] && echo "Windows: all as wanted"
exit "$failed"
