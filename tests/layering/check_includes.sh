#!/bin/sh
# Checks that includes point down only. Usage: check_includes.sh SOURCE_ROOT
# A folder may include itself and the folders before it in `order`; the engine knows no window and no
# file; system headers stay in system/ and toolkit headers in qt/.
set -eu
root=$1
order="base system ui engine listing text sources app cli qt"

rank() {
  i=0
  for folder in $order; do
    i=$((i + 1))
    [ "$folder" = "$1" ] && { echo $i; return; }
  done
  echo 0
}

faults=$(
  cd "$root/src"
  grep -RnE '^#include "[a-z_]+/' --include='*.h' --include='*.cpp' . | sed 's|^\./||' |
    while IFS= read -r line; do
      from=${line%%/*}
      to=$(printf '%s' "$line" | sed -E 's|.*#include "([a-z_]+)/.*|\1|')
      if [ "$(rank "$to")" -eq 0 ] || [ "$(rank "$to")" -gt "$(rank "$from")" ]; then
        echo "upward:  $line"
      elif [ "$from" = engine ] && { [ "$to" = system ] || [ "$to" = ui ]; }; then
        echo "engine:  $line"
      fi
    done
  grep -RnE '#include <(windows\.h|shlobj|shellapi|unistd\.h|fcntl\.h|dirent\.h|pwd\.h|spawn\.h|langinfo\.h|sys/)' \
    --include='*.h' --include='*.cpp' . | grep -v '^\./system/' | sed 's|^|system:  |' || true
  grep -RnE '#include [<"](Q[A-Z]|Qt)' --include='*.h' --include='*.cpp' . | grep -v '^\./qt/' |
    sed 's|^|toolkit: |' || true
)
if [ -n "$faults" ]; then
  printf '%s\n' "$faults"
  exit 1
fi
echo "includes point down only"
