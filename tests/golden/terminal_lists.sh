#!/bin/sh
# The golden lists as quillomat-cli makes them: any build of it, so that what users run is tested, too.
# Usage: terminal_lists.sh PROGRAM DATA_FOLDER LISTS_FOLDER
set -u
program=$1
lists=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$2" || exit 1
compared=0
failed=0
for list in "$lists"/*.txt; do
  name=$(basename "$list" .txt)
  format=$(printf '%s' "${name%%-*}" | sed 's/^0//')
  case $name in *-alphabetical*) order=alphabetical ;; *) order=frequency ;; esac
  case $name in *-with-commas) commas=1 ;; *) commas=0 ;; esac
  if [ "$format" -ge 11 ]; then
    set -- --folder samples --set 'txbWordsToIgnoreOrCount(1)=the de la harbour hafen port'
  else
    set -- --file samples/harbour_en.txt
  fi
  "$program" "$@" --format "$format" --order $order --set chkOutputWithCommas=$commas \
    --output "$work/$name.txt" >"$work/out" 2>"$work/err" </dev/null || { cat "$work/err"; failed=1; }
  cmp "$list" "$work/$name.txt" || failed=1
  compared=$((compared + 1))
done
echo "$compared lists compared"
[ "$compared" -ge 42 ] && exit "$failed"
