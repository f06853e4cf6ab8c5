#!/bin/sh
# Runs quillomat-cli as a script would and checks what it prints, where, and with which exit status.
# Usage: end_to_end.sh PROGRAM DATA_FOLDER
set -u
program=$1
data=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
failed=0

# check NAME STATUS [ARGUMENT...]: runs the program and compares its exit status; what it prints is in
# out and err.
check() {
  name=$1
  wanted=$2
  shift 2
  "$program" "$@" >out 2>err </dev/null
  status=$?
  if [ "$status" -ne "$wanted" ]; then
    echo "FAILED $name: exit status $status, not $wanted"
    cat err
    failed=1
  fi
}

# holds FILE TEXT, lines FILE NUMBER: about what was printed.
holds() {
  grep -qF -- "$2" "$1" || { echo "FAILED $name: $1 does not hold: $2"; cat "$1"; failed=1; }
}
lines() {
  [ "$(wc -l <"$1")" -eq "$2" ] || { echo "FAILED $name: $1 has not $2 lines"; cat "$1"; failed=1; }
}

printf 'The cat and the dog.\nThe cat -- a well-known cat!\n' >cat.txt
printf '' >empty.txt
printf 'a\001b' >binary.txt
printf '12 34\n' >numbers.txt
mkdir folder
cp cat.txt folder/one.txt
printf 'The end' >folder/two.md

check "a file is counted" 0 --file cat.txt --format "word frequency"
holds out "  cat             3"
lines out 7
lines err 0
check "the summary goes to standard error" 0 --file cat.txt --summary
holds err "Number of words in this list:"
check "a list of words runs on without a line end" 0 --file cat.txt --format 9 --order alphabetical
[ "$(cat out)" = "a, and, cat, dog, the, well-known" ] || { echo "FAILED $name"; cat out; failed=1; }
check "standard input is counted" 1 --text -
holds err "Clipboard is empty."
printf 'one two two' | "$program" --text - --format 5 | grep -q '     2  two' ||
  { echo "FAILED: text from standard input"; failed=1; }
check "settings reach the count" 0 --file cat.txt --set chkAllowWordsWithHyphens=0 --format 8
holds out "known"
check "an option stands for a setting" 0 --file cat.txt --no-hyphens --format 8
holds out "known"
check "words to leave out" 0 --file cat.txt --ignore-words the,and --min-length 4 --format 8
lines out 2
check "only some words" 0 --folder folder --only-words "the cat" --only-extensions txt --format 8
lines out 3
check "an option out of range" 2 --file cat.txt --min-length 12
holds err "--min-length 12: takes one of 1, 2, 3"
lines err 1
check "an option against a setting" 2 --file cat.txt --hyphens --set chkAllowWordsWithHyphens=0
holds err "contradicts --hyphens"
check "typed words are left out" 0 --file cat.txt --set 'txbWordsToIgnoreOrCount(0)=the, and' --format 8
grep -qx "the" out && { echo "FAILED $name"; failed=1; }
check "a words file is read" 0 --file cat.txt --set "txbWordsFile(0)=$data/cwds_en.txt" --format 8
holds err "words-to-ignore loaded from"
check "a folder is counted" 0 --folder folder --format 7 --summary
holds out "  the             4"
check "extensions restrict the folder" 0 --folder folder --set 'txbFileExtensions(0)=md' --format 7
holds out "  the         1"
check "words are found in their files" 0 --folder folder --set 'txbWordsToIgnoreOrCount(1)=the' --format 13
holds out "    3 folder/one.txt"
check "files are listed" 0 --folder folder --list-files
holds out "{Folder}/two.md"
holds out "2 files in 1 folder will be scanned."
check "the window's text is printed" 0 --file cat.txt --window-text --format 8
holds out "well-known"
check "an output file is written" 0 --file cat.txt --output list.txt --format 8
lines out 0
[ -s list.txt ] || { echo "FAILED $name: no list"; failed=1; }
check "an output file is not overwritten" 1 --file cat.txt --output list.txt --format 7
holds err "list.txt"
check "an output file is overwritten on demand" 0 --file cat.txt --output list.txt --format 7 \
  --answer "The output file exists.=OK"
grep -q "  cat             3" list.txt || { echo "FAILED $name"; failed=1; }
check "an output file is overwritten by an option" 0 --file cat.txt --output list.txt --format 8 --overwrite
grep -qx cat list.txt || { echo "FAILED $name"; failed=1; }
cp list.txt kept.txt
check "an output file that a state names is left alone on demand" 0 --file cat.txt \
  --set 'txbFile(1)=list.txt' --disable-output --format 7
holds out "  cat             3"
cmp -s list.txt kept.txt || { echo "FAILED $name"; failed=1; }

for case in "missing.txt 1 does not exist" "folder 1 is a folder" "empty.txt 1 is empty"; do
  file=${case%% *}
  text=${case#* 1 }
  check "$file is refused" 1 --file "$file"
  holds err "$file"
  holds err "$text"
  lines err 1
  lines out 0
done
check "a file that is no text is refused" 1 --file binary.txt
grep -q '^Invalid input file: .* associated application,.* to be scanned\.$' err ||
  { echo "FAILED $name: not as TITLE: TEXT"; failed=1; }
holds err "quillomat-cli: there is no list of binary.txt"
lines err 2
check "a file is no folder" 1 --folder cat.txt
holds err "cat.txt is a file"
check "a list without words is none" 1 --file numbers.txt
lines err 1
check "a format needs its source" 1 --file cat.txt --format "word file-list"
holds err "only when the source of the text is a folder"
check "a device without bytes is empty" 1 --file /dev/stdin
holds err "/dev/stdin is empty"
check "an empty path" 2 --file ""
holds err "argument 2 is empty"
check "exports beside the list" 0 cat.txt --export words.csv --export words.xlsx --columns word,frequency
holds out "cat"
printf 'word,frequency\r\nthe,3\r\ncat,3\r\n' >wanted.csv
head -n 3 words.csv | sort >words.sorted
sort wanted.csv | cmp -s - words.sorted || { echo "FAILED $name: words.csv"; cat words.csv; failed=1; }
[ "$(head -c 2 words.xlsx)" = PK ] || { echo "FAILED $name: words.xlsx is no workbook"; failed=1; }
mkdir broken
library=$(grep -ao 'libxlsxwriter\.so\.[0-9]*' "$program" | head -n 1)
echo "no library" >"broken/$library"
LD_LIBRARY_PATH=$work/broken
export LD_LIBRARY_PATH
check "without the library for workbooks all else works" 0 cat.txt --export rest.csv
check "a workbook that cannot be written is told before the count" 1 cat.txt --export rest.xlsx
holds err "--export rest.xlsx: $library is missing, which writes workbooks; install it, or choose another format"
lines out 0
unset LD_LIBRARY_PATH
check "an export that exists is left" 1 cat.txt --export words.csv
holds err "--overwrite"
check "an export is replaced when asked" 0 cat.txt --export words.csv --overwrite --top 1
lines words.csv 2
cp cat.txt cat.csv
check "an export never replaces the text" 1 cat.csv --export cat.csv --overwrite
cmp -s cat.txt cat.csv || { echo "FAILED $name: the text is gone"; failed=1; }
check "an ending that is no format" 2 cat.txt --export words.doc
holds err "xlsx"
check "an export into a folder that is not there" 1 cat.txt --export none/words.csv
holds err "none/words.csv cannot be written"

check "an empty argument" 2 --file cat.txt '' --output list.txt
holds err "argument 3 is empty"
check "no path" 2
holds err "--file"

# Paths, pipes and standard input.
check "a path needs no option" 0 cat.txt --format 7
holds out "  cat             3"
check "several paths are counted together" 0 cat.txt folder numbers.txt --format 7
holds out "  the             7"
check "in the order given" 0 folder/two.md cat.txt --only-words the --format 12
printf '\nthe\n    folder/two.md\n    cat.txt\n\n' | cmp -s - out || { echo "FAILED $name"; od -c out; failed=1; }
check "a folder by its option" 0 --folder "$work/folder" --only-words the --format 12
holds out "{Folder}"
cp out folder.list
check "a single folder is shown as one" 0 "$work/folder" --only-words the --format 12
cmp -s folder.list out || { echo "FAILED $name"; cat out; failed=1; }
check "a path that is missing stops all" 1 cat.txt missing.txt
holds err "missing.txt does not exist"
lines out 0
check "an empty file among others is named" 0 cat.txt empty.txt --format 8
holds err "Skipped: empty.txt is empty"
check "an output file is not among the paths" 1 folder cat.txt --output cat.txt --overwrite
holds err "The output file cannot be the same as the input file."
check "--list-files wants a folder" 2 cat.txt --list-files
holds err "--list-files goes with one folder"
check "the window shows one text" 2 cat.txt folder --window-text
holds err "--window-text"
same() { # NAME ARGUMENT...: reads what stands ready and makes the list of cat.txt
  name=$1
  shift
  "$program" "$@" >out 2>err || { echo "FAILED $name: exit status $?"; cat err; failed=1; }
  cmp -s wanted.list out || { echo "FAILED $name"; cat out; failed=1; }
}
"$program" --file cat.txt >wanted.list
same "a pipe" - <cat.txt
cat cat.txt | same "a pipe with --file" --file -
cat cat.txt | same "a pipe by its name" --file /dev/stdin
(cat cat.txt) | same "a pipe among paths" empty.txt -
mkfifo fifo.txt
cat cat.txt >fifo.txt &
same "a named pipe" fifo.txt
cat cat.txt >fifo.txt &
same "a named pipe with --file" --file fifo.txt
wait
check "nothing on standard input" 1 -
holds err "standard input is empty"
printf 'a\001b' | "$program" - >out 2>err && { echo "FAILED: no text on standard input"; failed=1; }
holds err "standard input"
cp cat.txt piped.txt
"$program" - --output piped.txt --overwrite <piped.txt 2>err && { echo "FAILED: input overwritten"; failed=1; }
cmp -s cat.txt piped.txt || { echo "FAILED: standard input was overwritten"; failed=1; }

# The start of a list.
check "the first words" 0 --file cat.txt --top 2 --format 8
lines out 3
check "the first words of a list that runs on" 0 --file cat.txt --top 2 --format 9 --order alphabetical
[ "$(cat out)" = "a, and" ] || { echo "FAILED $name"; cat out; failed=1; }
check "the first words in a file" 0 --file cat.txt --top 2 --format 8 --output top.txt
lines top.txt 3
check "more words than there are" 0 --file cat.txt --top 100 --format 8
lines out 7

# Progress and interruptions.
check "no progress where nobody looks" 0 --file cat.txt
lines err 0
check "progress on demand" 0 --file cat.txt --progress
holds err "] 100%"
# More than a pipe holds has been taken before the second begins; the pipe stays open until the program ends.
interrupt() { # NAME STATUS [ARGUMENT...]: sends INT while the program waits for more
  name=$1
  wanted=$2
  shift 2
  {
    cat cat.txt
    head -c 100000 /dev/zero | tr '\000' 'x'
    echo
    sleep 1
    kill -INT "$(cat pid)"
    while kill -0 "$(cat pid)" 2>/dev/null; do sleep 0.05; done
  } | sh -c 'echo $$ >pid; exec "$0" - "$@"' "$program" "$@" >out 2>err
  status=$?
  [ "$status" -eq "$wanted" ] || { echo "FAILED $name: exit status $status"; cat err; failed=1; }
}
interrupt "an interruption leaves no list" 130
lines out 0
interrupt "an interruption with a list" 130 --list-on-interrupt --format 7
holds out "  cat "
holds err "Interrupted: "
check "the input is not overwritten by a state" 1 --file cat.txt --save-state cat.txt
holds cat.txt "well-known"
printf 'dog\rcat\r' >mac.txt
check "a warning stops nothing" 0 --file cat.txt --set 'txbWordsFile(0)=mac.txt' --format 8
holds err "This file has Macintosh line endings."
if [ -e /dev/full ]; then
  check "a list that finds no room" 1 --file cat.txt --output /dev/full
  holds err "Error 61: Disk full"
  holds err "--output /dev/full is not written"
fi
check "the names of formats are known in capitals" 0 --file cat.txt --format "Word Frequency"
check "a refused overwrite is told of" 1 --file cat.txt --output list.txt \
  --answer "The output file exists.=Cancel"
holds err "list.txt is left as it is"
check "an unknown answer" 2 --file cat.txt --answer "Relist?=maybe"
holds err "possible: Yes, No"
mkdir two && cp cat.txt two/a.txt && cp cat.txt two/b.txt
check "a cancelled run says so" 1 --folder two --answer "Multiple files/folders=cancel"
holds err "cancelled by --answer 'Multiple files/folders=cancel'"
lines err 1
cp cat.txt input.txt && ln -s input.txt link.txt
check "the text of --text is not overwritten" 1 --text input.txt --output link.txt --overwrite
holds err "Error: The output file cannot be the same as the input file."
holds err "there is no list of input.txt"
check "nor is that of standard input" 1 --text - --output link.txt --overwrite <input.txt
cmp -s cat.txt input.txt || { echo "FAILED: the input was overwritten"; failed=1; }
ln -s two/a.txt to-two.txt
check "no counted file is overwritten through a link" 1 --folder two --output to-two.txt --overwrite
holds err "Invalid output file: "
cmp -s cat.txt two/a.txt || { echo "FAILED: a counted file was overwritten"; failed=1; }
check "a state is saved" 0 --file cat.txt --save-state old.qlm
check "and replaced by another" 0 --file cat.txt --save-state old.qlm
check "but not while it is read" 1 --file cat.txt --state old.qlm --save-state old.qlm
cp cat.txt prose.qlm
check "what is no state is not replaced by one" 1 --file cat.txt --save-state prose.qlm
holds err "prose.qlm exists and is no state"
check "an unknown format" 2 --file cat.txt --format nonsense
holds err "nonsense"
check "an unknown order" 2 --file cat.txt --order nonsense
holds err "nonsense"
check "an unknown control" 2 --file cat.txt --set nonsense=1
holds err "nonsense"
check "a wrong value" 2 --file cat.txt --set chkDropFinalS=7
holds err "chkDropFinalS"
check "settings are saved to a state file" 0 --file cat.txt --set chkDropFinalS=1 \
  --set 'txbWordsToIgnoreOrCount(0)=dog' --save-state mine.qlm
[ "$(wc -l <mine.qlm)" -eq 45 ] || { echo "FAILED $name: not 45 lines"; failed=1; }
odd=$(printf 'a"b\nc\351')
check "a state keeps any path" 0 --file cat.txt --set "txbFile(1)=$odd" --disable-output --save-state odd.qlm
printf 'txbFile(1)=a"b%%0Ac%%E9\r\n' >wanted
tail -n 1 odd.qlm | cmp -s - wanted || { echo "FAILED $name"; tail -n 1 odd.qlm; failed=1; }
check "settings come from a state file" 0 --file cat.txt --state mine.qlm --format 8
grep -qx dog out && { echo "FAILED $name"; failed=1; }
check "a folder that is lost stops no file" 0 --file cat.txt --set txbFolder=lost --format 8
seq 1 9000 | sed 's/.*/wa&x/' >long.txt
check "a list too long for the window is no failure" 0 --file long.txt --window-text \
  --set chkAllowWordsWithNumerals=1
holds err "Textbox is full."
# More than a megabyte, with accents and repetitions.
seq 1 150000 | sed 's/.*/w& caf\xc3\xa9 the The/' >large.txt
check "one thread" 0 --file large.txt --threads 1 --set chkAllowWordsWithNumerals=1
cp out one.txt
check "several threads make the same list" 0 --file large.txt --threads 4 \
  --set chkAllowWordsWithNumerals=1
cmp -s one.txt out || { echo "FAILED $name"; failed=1; }
QUILLOMAT_KERNEL=abacus
export QUILLOMAT_KERNEL
check "a kernel that does not exist" 2 --file cat.txt
holds err "quillomat-cli: QUILLOMAT_KERNEL is 'abacus'; this machine has portable"
lines out 0
QUILLOMAT_KERNEL=portable
check "a kernel that does exist" 0 --file cat.txt
unset QUILLOMAT_KERNEL
check "a missing state file" 1 --file cat.txt --state missing.qlm
holds err "missing.qlm"
head -n 44 mine.qlm >short.qlm
check "a state file that is cut" 1 --file cat.txt --state short.qlm
holds err "Input past end of file"
XDG_CONFIG_HOME=$work/config
export XDG_CONFIG_HOME
check "a user without settings has those of a first start" 0 --file cat.txt --user-settings
mkdir -p "config/Orvandel Systems"
cp mine.qlm "config/Orvandel Systems/qlav.usr"
check "the user's settings are used on demand" 0 --file cat.txt --user-settings --format 8
grep -qx dog out && { echo "FAILED $name"; failed=1; }
check "the user's settings are left alone otherwise" 0 --file cat.txt --format 8
holds out "dog"
check "a list on a full disk" 1 --file cat.txt --output /dev/full \
  --set chkWarnOnOverwrite=0
holds err "Error 61: Disk full"
if [ -e /dev/full ]; then
  "$program" --file cat.txt >/dev/full 2>err
  [ $? -eq 1 ] || { echo "FAILED: standard output on a full disk"; failed=1; }
  holds err "Disk full"
fi
if [ -e /dev/full ]; then
  name="help on a full disk"
  "$program" --help >/dev/full 2>err
  [ $? -eq 1 ] || { echo "FAILED $name"; failed=1; }
  holds err "standard output: Disk full"
fi
for arguments in "--help" "--version" "--file cat.txt" "--folder folder --list-files"; do
  name="closed standard output, $arguments"
  "$program" $arguments >&- 2>err
  [ $? -eq 1 ] || { echo "FAILED $name: not status 1"; failed=1; }
  holds err "standard output is closed"
done
name="a reader that has seen enough"
"$program" --file large.txt --set chkAllowWordsWithNumerals=1 2>err | head -n 1 >out
lines out 1
lines err 0

# Input without an end.
limited() { # NAME [ARGUMENT...]: as check with status 1, within a time; standard input stays
  name=$1
  shift
  timeout 30 "$program" "$@" >out 2>err
  status=$?
  [ "$status" -eq 1 ] || { echo "FAILED $name: exit status $status"; cat err; failed=1; }
}
if [ -e /dev/zero ]; then
  limited "a text without an end" --text /dev/zero
  holds err "Too much clipboard text: There are more than 100,000 characters in the text on the clipboard. The maximum permitted is 100,000."
  yes | limited "standard input without an end" --text -
  holds err "There are more than 100,000 characters"
  holds err "quillomat-cli -"
  limited "a state without an end" --file cat.txt --state /dev/zero
  holds err "/dev/zero cannot be used as a state: a line of it is longer than 16,777,216 bytes"
  limited "words without an end" --file cat.txt --set 'txbWordsFile(0)=/dev/zero'
  holds err "not a text file"
  yes | tr -d '\n' | limited "a word without an end" --file cat.txt --set 'txbWordsFile(0)=/dev/stdin'
  holds err "/dev/stdin: it is longer than 16,777,216 bytes"
  yes | limited "words in lines without an end" --file cat.txt --set 'txbWordsFile(0)=/dev/stdin'
  holds err "/dev/stdin: it is longer than 16,777,216 bytes"
fi

# Control characters: escaped for a terminal, untouched for files and pipes.
mkdir odd
printf 'cat' >"odd/$(printf 'a\033]0;title\007\nb').txt"
tally="--folder odd --format 12 --set txbWordsToIgnoreOrCount(1)=cat"
check "bytes for a pipe" 0 $tally
holds out "$(printf 'a\033]0;title\007')"
if command -v script >/dev/null; then
  name="on a terminal"
  script -qec "'$program' $(printf '%s' "$tally" | sed 's/(1)/\\(1\\)/')" /dev/null </dev/null >out 2>&1
  holds out 'a\x1B]0;title\x07'
  script -qec "'$program' --file '$(printf 'no\033[1mfile')'" /dev/null </dev/null >out 2>&1
  holds out 'no\x1B[1mfile does not exist'
fi
check "NUL bytes end lines" 0 $tally --null
[ "$(tr -cd '\000' <out | wc -c)" -eq 4 ] || { echo "FAILED $name"; od -c out; failed=1; }
check "NUL bytes in an output file" 0 --file cat.txt --format 8 --null --output null.txt
[ "$(tr -cd '\000' <null.txt | wc -c)" -eq 7 ] || { echo "FAILED $name"; od -c null.txt; failed=1; }

[ "$failed" -eq 0 ] && echo "all as wanted"
exit "$failed"
