#!/bin/sh
# Every option that --help names is in the manual page and in the completions.
# Usage: manual.sh PROGRAM MANUAL_FOLDER
set -u
options=$("$1" --help | grep -oE '^ +(-[a-z], )?--[a-z0-9-]+' | grep -oE -- '--.*')
[ "$(printf '%s\n' "$options" | wc -l)" -ge 15 ] || { echo "too few options: $options"; exit 1; }
failed=0
for option in $options; do
  grep -qF -- "fB$(printf '%s' "$option" | sed 's/-/\\-/g')\\fR" "$2/man/quillomat-cli.1" ||
    { echo "$option is not in the manual"; failed=1; }
  grep -qE -- "[' ]$option[' ]" "$2/bash/quillomat-cli" || { echo "bash: no $option"; failed=1; }
  grep -qF -- "*$option[" "$2/zsh/_quillomat-cli" || { echo "zsh: no $option"; failed=1; }
  grep -qF -- " -l ${option#--} " "$2/fish/quillomat-cli.fish" || { echo "fish: no $option"; failed=1; }
done
grep -qF 'fIPATH\fR...' "$2/man/quillomat-cli.1" || { echo "no PATH... in the manual"; failed=1; }
"$1" --help | grep -qF 'quillomat-cli [OPTIONS] [PATH...]' || { echo "no PATH... in the help"; failed=1; }
grep -qF '*:file:_files' "$2/zsh/_quillomat-cli" || { echo "zsh: no paths"; failed=1; }
grep -qE '[ |]--export[|)]' "$2/bash/quillomat-cli" || { echo "bash: no paths for --export"; failed=1; }
bash -n "$2/bash/quillomat-cli" || failed=1
exit "$failed"
