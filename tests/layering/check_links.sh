#!/bin/sh
# Checks that every folder of src/ links the folders whose headers it includes: all of them, and no other.
# Usage: check_links.sh SOURCE_ROOT
set -eu
cd "$1/src"
faults=$(
  for folder in */; do
    folder=${folder%/}
    included=$(grep -RhoE '^#include "[a-z_]+/' --include='*.h' --include='*.cpp' "$folder" |
      sed 's/.*"//; s|/||' | sort -u | grep -vx "$folder" | tr '\n' ' ')
    linked=$(grep -oE '(^| |\()quillomat_[a-z]+' "$folder/CMakeLists.txt" | sed 's/.*quillomat_//' | sort -u |
      while IFS= read -r name; do
        if [ -d "$name" ] && [ "$name" != "$folder" ]; then echo "$name"; fi
      done | tr '\n' ' ')
    [ "$included" = "$linked" ] || echo "$folder includes: $included- but links: $linked"
  done
)
if [ -n "$faults" ]; then
  printf '%s\n' "$faults"
  exit 1
fi
echo "links are includes"
