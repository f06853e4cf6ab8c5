#!/bin/sh
# Unpacks the archive for Windows on an empty machine (a new Wine prefix) and uses it as a person does,
# with real keys on a virtual screen: counts a folder into a file, switches the language,
# quits, starts again and finds everything as it was. Usage: test-zip.sh [ARCHIVE [PICTURES]]
# With a folder PICTURES, pictures of the windows are left there.
. "$(dirname "$0")/../../cmake/setup.sh"

# shellcheck disable=SC2046 # one word a package
need_packages $(packages_of test) $(packages_of windows) $(packages_of windows-qt)
here=$root/packaging/windows
archive=${1:-$(find "$root/build" -maxdepth 1 -name 'Quillomat-*-win64.zip' | sort | tail -n 1)}
[ -f "$archive" ] || { echo "There is no archive; packaging/windows/build.sh makes it." >&2; exit 1; }
pictures=${2:-}
work=$(mktemp -d)
prefix=$work/machine
drive=$prefix/drive_c
screen_pid=
cleanup() {
  WINEPREFIX=$prefix wineserver -k 2>/dev/null || true
  [ -z "$screen_pid" ] || kill "$screen_pid" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

fail() {
  printf 'FAILED: %s\n' "$1" >&2
  [ -z "$pictures" ] || picture failure || true
  cat "$work"/*.log >&2
  exit 1
}

# wait_for SECONDS COMMAND...: until the command succeeds.
wait_for() {
  tries=$(($1 * 10))
  shift
  while ! "$@" >/dev/null 2>&1; do
    tries=$((tries - 1))
    [ "$tries" -gt 0 ] || return 1
    sleep 0.1
  done
}

# picture NAME: of the screen, if pictures are wanted.
picture() {
  [ -n "$pictures" ] || return 0
  sleep 1
  xwd -root -silent | xwdtopnm 2>/dev/null | pnmcut "$X" "$Y" "$WIDTH" "$HEIGHT" | pnmtopng -quiet \
    >"$pictures/$1.png"
}

wine_run() { "$here/wine.sh" "$prefix" "$@"; }

Xvfb -noreset -displayfd 3 -screen 0 1280x900x24 3>"$work/display" 2>"$work/screen.log" &
screen_pid=$!
wait_for 20 test -s "$work/display" || fail "no virtual screen"
DISPLAY=:$(cat "$work/display")
export DISPLAY LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY || true
wine_run wineboot --init >"$work/boot.log" 2>&1
# Letters as wide as those that every Windows has.
for font in "Courier New=Liberation Mono" "MS Shell Dlg=Liberation Sans" "MS Shell Dlg 2=Liberation Sans" \
  "Segoe UI=Liberation Sans" "Tahoma=Liberation Sans"; do
  wine_run reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "${font%=*}" /d "${font#*=}" /f \
    >>"$work/boot.log" 2>&1
done


unzip -q "$archive" -d "$drive"
folder=$(find "$drive" -maxdepth 1 -name 'Quillomat-*' -type d)
version=$(basename "$folder" | cut -d- -f2)
for program in quillomat:30 quillomat-cli:5; do
  "$here/check-program.sh" "$folder/${program%:*}.exe" "${program#*:}" >"$work/check.log" 2>&1 ||
    fail "the program is not as it should be"
done
[ -s "$folder/licences/READ ME FIRST.txt" ] || fail "no licences"
mkdir "$drive/books"
cp "$folder/samples/harbour_en.txt" "$folder/samples/leuchtturm_de.txt" "$drive/books"

start() {
  # With the system's letters Wine tells a wrong height of texts, so that those in boxes of one line
  # stand outside of them. The toolkit's own way to draw letters has nothing to do with Wine.
  wine_run "$folder/quillomat.exe" -platform windows:fontengine=freetype \
    >"$work/program.log" 2>&1 &
  program_pid=$!
  wait_for 60 xdotool search --onlyvisible --name "^Quillomat $version\$" || fail "no window"
  window=$(xdotool search --onlyvisible --name "^Quillomat $version\$" | head -n 1)
  eval "$(xdotool getwindowgeometry --shell "$window")"
  xdotool windowfocus --sync "$window"
  sleep 2
}
# tab N: goes on by so many controls in the keyboard's order (the <tabstops> of src/qt/main_form.ui).
tab() {
  for _ in $(seq "$1"); do xdotool key --delay 60 Tab; done
  sleep 0.3
}
has_ended() { ! kill -0 "$program_pid" 2>/dev/null; }
# From the count command, which has the focus after a count, to the one that switches the language, and
# from there to Quit.
switch_language() {
  tab 4
  xdotool key space
}
quit() {
  tab 2
  xdotool key space
  wait_for 30 has_ended || fail "it does not end"
  wait "$program_pid" || fail "it ends with a status"
}
language() {
  wine_run reg query 'HKCU\Software\Orvandel Systems\Quillomat' /v Language 2>/dev/null |
    tr -d '\r' | sed -n 's/.*REG_SZ *//p'
}
speaks() { [ "$(language)" = "$1" ]; }

# The first start: the button that chooses a folder has the focus, the folder's box is two behind it,
# and the box of the output file seven behind that.
start
tab 2
xdotool type --delay 40 'C:\books'
sleep 1
tab 7
xdotool type --delay 40 'C:\list.txt'
xdotool key Return
wait_for 30 test -s "$drive/list.txt" || fail "no list was written"
sleep 2
picture windows-main-en
wine_run "$folder/quillomat-cli.exe" --folder 'C:\books' >"$work/cli.txt" 2>"$work/cli.log" ||
  fail "the terminal program does not count"
cmp "$drive/list.txt" "$work/cli.txt" || fail "the window's list is not the terminal's"
cp "$drive/list.txt" "$work/first.txt"

[ -z "$(language)" ] || fail "a language is kept before one was chosen"
switch_language
wait_for 20 speaks DE || fail "the language is not kept in the registry"
picture windows-main-de
quit
settings=$(find "$drive/users" -path '*AppData/Roaming/Orvandel Systems/qlav.usr')
[ -n "$settings" ] || fail "no settings in the application data"
grep -qi 'c:\\books' "$settings" && grep -qi 'c:\\list.txt' "$settings" ||
  fail "the settings are not those of the count"

# The second start knows both paths, as the question shows, and the language, as its switch shows.
start
rm "$drive/list.txt"
: >"$drive/list.txt"
xdotool key Return
wait_for 30 xdotool search --onlyvisible --name '^The output file exists.$' || fail "no question"
xdotool windowfocus --sync "$(xdotool search --onlyvisible --name '^The output file exists.$' | head -n 1)"
xdotool key Return
wait_for 30 cmp "$drive/list.txt" "$work/first.txt" || fail "the second list is another"
xdotool windowfocus --sync "$window"
switch_language
wait_for 20 speaks EN || fail "it did not start in German"
quit
printf 'Windows: counted, kept and counted again\n'
