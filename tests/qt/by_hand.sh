#!/bin/sh
# Uses the real program on a virtual screen with real keys and clicks: counts a file into another,
# quits, starts again, and finds everything as it was; then it is ended by a signal. Nothing may be said on the terminal.
# Usage: by_hand.sh PROGRAM DATA_FOLDER
set -eu
program=$1
data=$2
. "$(dirname "$0")/virtual_screen.sh"
start_screen
version=$("$program" --version | sed 's/.* //')

start() {
  "$program" "$@" >"$work/program.log" 2>&1 &
  program_pid=$!
  wait_for 30 xdotool search --onlyvisible --name "^Quillomat $version\$" || fail "no window"
  window=$(xdotool search --onlyvisible --name "^Quillomat $version\$" | head -n 1)
  xdotool windowfocus --sync "$window"
  sleep 0.5
}

has_ended() { ! kill -0 "$program_pid" 2>/dev/null; }

end_quietly() {
  wait_for 20 has_ended || fail "it does not end"
  wait "$program_pid" || fail "it ends with a status"
  [ ! -s "$work/program.log" ] || fail "it says something on the terminal"
}

# What could not be counted is not dropped without a word.
status=0
"$program" "$work/one.txt" "$work/other.txt" 2>"$work/refusal.txt" || status=$?
[ "$status" -eq 2 ] || fail "two paths end with status $status"
grep -q "one file or folder at a time.*other.txt" "$work/refusal.txt" || fail "two paths are not refused"

# The box of the output file stands four before the count command, which has the focus.
start "$data/samples/harbour_en.txt"
xdotool key --delay 60 shift+Tab shift+Tab shift+Tab shift+Tab
xdotool type --delay 20 "$work/list.txt"
xdotool key Return
wait_for 20 test -s "$work/list.txt" || fail "no list was written"
sleep 0.5
head -n 2 "$work/list.txt" | tail -n 1 | grep -q '^ *1 *267  the$' || fail "the list is wrong"
cp "$work/list.txt" "$work/first.txt"

# A click into the list, and Quit by its letter. The mouse clicks it in first_minutes.cpp, which knows
# where it is.
eval "$(xdotool getwindowgeometry --shell "$window")"
xdotool mousemove $((X + WIDTH - 100)) $((Y + HEIGHT / 2)) click 1
xdotool key alt+q
end_quietly
settings="$XDG_CONFIG_HOME/Orvandel Systems/qlav.usr"
grep -q "$work/list.txt" "$settings" || fail "the settings were not saved"

# The question whether to overwrite shows that the second start knows both paths.
start
: >"$work/list.txt"
xdotool key Return
wait_for 20 xdotool search --onlyvisible --name '^The output file exists.$' || fail "no question"
xdotool windowfocus --sync "$(xdotool search --onlyvisible --name '^The output file exists.$' | head -n 1)"
# A box takes no keys as soon as it is there, and on a busy machine it is there late. Enter is Cancel; the
# command that overwrites is the next.
sleep 1.5
xdotool key --delay 60 Tab Return
wait_for 20 cmp "$work/list.txt" "$work/first.txt" || fail "the second list is another"
xdotool windowfocus --sync "$window"
sleep 0.3
# Quit is the sixth behind the count command, which has the focus after a count.
xdotool key --delay 60 Tab Tab Tab Tab Tab Tab space
end_quietly

# A name that is no UTF-8, given on the command line; then a signal ends the program, which keeps its
# settings all the same.
name=$(printf 'caf\351.txt')
cp "$data/samples/harbour_en.txt" "$work/$name"
start "$work/$name"
kill -TERM "$program_pid"
wait_for 20 has_ended || fail "it does not end when it is asked to"
status=0
wait "$program_pid" || status=$?
[ "$status" -eq 143 ] || fail "asked to end it ends with status $status"
[ ! -s "$work/program.log" ] || fail "it says something on the terminal"
grep -q '^txbFile(0)=.*/caf%E9.txt' "$settings" || fail "the settings were not kept"
printf 'counted, kept and counted again\n'
