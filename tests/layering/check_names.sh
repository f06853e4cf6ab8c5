#!/bin/sh
# Checks that no type of the program is defined twice: two classes of one name, in whatever folders, are
# one to the linker, which says nothing and takes the members of either. Types in unnamed namespaces are
# their file's own, and of the files for different systems only one set is built.
# Usage: check_names.sh SOURCE_ROOT
set -eu
cd "$1/src"
# The formatter has put what stands in the namespace itself to the beginning of the line.
twice=$(
  find . -name '*.h' -o -name '*.cpp' | sed 's|^\./||' | sort | xargs awk '
    FNR == 1 { hidden = 0 }
    /^namespace \{/ { hidden = 1 }
    /^\}  \/\/ namespace$/ { hidden = 0 }
    !hidden && /^(template <.*> )?(class|struct|union|enum class|enum struct|enum) [A-Za-z_]/ && !/^[^{]*;$/ {
      line = $0
      sub(/^template <.*> /, "", line)
      sub(/^(class|struct|union|enum class|enum struct|enum) /, "", line)
      sub(/^(alignas\([^)]*\)|\[\[[a-z_]*\]\]) /, "", line)
      match(line, /^[A-Za-z_0-9:]+/)
      name = substr(line, 1, RLENGTH)
      place = FILENAME
      sub(/\/(linux|windows)\//, "/SYSTEM/", place)
      if (!(name in first)) first[name] = place
      else if (first[name] != place) print "twice:  " name " in " first[name] " and " place
    }' | sed 's|/SYSTEM/|/linux/ or windows/|g'
)
if [ -n "$twice" ]; then
  printf '%s\n' "$twice"
  exit 1
fi
echo "every name is one type's"
