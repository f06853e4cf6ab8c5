#!/bin/sh
# Runs what a newcomer does in the first minutes (first_minutes.cpp) on a virtual screen with a window
# manager and an empty home. Nothing may be said on the terminal.
# Usage: first_minutes.sh PROGRAM DATA_FOLDER
set -eu
program=$1
data=$2
. "$(dirname "$0")/virtual_screen.sh"
start_screen
start_window_manager
mkdir "$HOME/Documents"
cp "$data/samples/harbour_en.txt" "$HOME/Documents/"
"$program" >"$work/program.log" 2>&1 || fail "the newcomer is stuck"
cat "$work/program.log"
