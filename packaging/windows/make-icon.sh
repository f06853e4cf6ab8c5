#!/bin/sh
# Makes an icon of Windows from a drawing: one picture for each size that the desktop asks for.
# Usage: make-icon.sh DRAWING.svg ICON.ico
set -eu
drawing=$1
icon=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for size in 16 24 32 48 64 256; do
  rsvg-convert --width "$size" --height "$size" --output "$work/$size.png" "$drawing"
done
# The largest is kept as a PNG, as Windows has it since Vista: a bitmap of it would be 256 kB.
icotool --create --output "$icon" --raw "$work/256.png" "$work/64.png" "$work/48.png" \
  "$work/32.png" "$work/24.png" "$work/16.png"
