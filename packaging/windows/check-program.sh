#!/bin/sh
# Checks that a Windows program needs no library but the system's own, has a manifest and is small
# enough. Usage: check-program.sh PROGRAM.exe MEGABYTES
set -eu
program=$1
limit=$(($2 * 1000 * 1000))

# Those that come with every Windows since 10.
system="advapi32 api-ms-win-core-synch-l1-2-0 api-ms-win-core-winrt-l1-1-0
 api-ms-win-core-winrt-string-l1-1-0 authz bcrypt comctl32 comdlg32 d2d1 d3d11 d3d9 dwmapi dwrite dxgi
 gdi32 imm32 kernel32 mpr msvcrt netapi32 ntdll ole32 oleaut32 rpcrt4 setupapi shcore shell32 shlwapi
 user32 userenv uxtheme version winmm winspool ws2_32 wtsapi32"
needed=$(x86_64-w64-mingw32-objdump -p "$program" | sed -n 's/^\tDLL Name: //p' | tr 'A-Z' 'a-z')
[ -n "$needed" ] || { printf '%s: no libraries at all?\n' "$program" >&2; exit 1; }
for library in $needed; do
  name=${library%.dll}
  name=${name%.drv}
  printf '%s\n' $system | grep -qxF "$name" ||
    { printf '%s needs %s, which is not part of Windows\n' "$program" "$library" >&2; exit 1; }
done

bytes=$(wc -c <"$program")
[ "$bytes" -lt "$limit" ] ||
  { printf '%s has %s bytes, more than %s\n' "$program" "$bytes" "$limit" >&2; exit 1; }
for text in longPathAware activeCodePage PerMonitorV2 Microsoft.Windows.Common-Controls; do
  grep -qa "$text" "$program" ||
    { printf '%s: its manifest does not say %s\n' "$program" "$text" >&2; exit 1; }
done
# The version stands there in UTF-16.
tr -d '\000' <"$program" | grep -qa 'ProductVersion' ||
  { printf '%s has no version\n' "$program" >&2; exit 1; }
printf '%s: %s bytes, needs %s\n' "$(basename "$program")" "$bytes" \
  "$(printf '%s ' $needed)"
