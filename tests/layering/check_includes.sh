#!/bin/sh
# Checks that includes point down only. Usage: check_includes.sh SOURCE_ROOT
# Each folder has a line with what it may include besides itself: what counts and lists knows no window,
# not even one made of plain objects, and the engine no file. System headers stay in system/ and toolkit
# headers in qt/.
set -eu
root=$1

may_include() {
  case $1 in
    base) ;;
    system) echo base ;;
    engine) echo base ;;
    listing) echo base engine ;;
    export) echo base system engine listing ;;
    sources) echo base system engine listing ;;
    ui) echo base system ;;
    text) echo base system ui ;;
    app) echo base system engine listing export sources ui text ;;
    cli) echo base system engine listing export sources ui text app ;;
    qt) echo base system engine listing sources ui text app ;;
  esac
}

faults=$(
  cd "$root/src"
  grep -RnE '^#include "[a-z_]+/' --include='*.h' --include='*.cpp' . | sed 's|^\./||' |
    while IFS= read -r line; do
      from=${line%%/*}
      to=$(printf '%s' "$line" | sed -E 's|.*#include "([a-z_]+)/.*|\1|')
      case " $from $(may_include "$from") " in
        *" $to "*) ;;
        *) echo "upward:  $line" ;;
      esac
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
